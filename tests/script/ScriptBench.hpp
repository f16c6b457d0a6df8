// ScriptBench is an interpreter of single lines on a machine of its own, for tests that look at the
// machine between two lines.
#pragma once

#include <sstream>

#include "desk/script/Interpreter.hpp"
#include "desk/script/ThingTable.hpp"

namespace orvane::desk::script {

struct ScriptBench {
  Session session;
  const ThingTable things = standardThings();
  const CommandTable commands = standardCommands();
  std::ostringstream output;
  ScriptContext context{.session = session,
                        .things = things,
                        .output = output,
                        .limits = {},
                        .pictureWriter = {},
                        .expectationFailed = {}};
  Interpreter interpreter{commands, context};
};

}  // namespace orvane::desk::script
