// ScriptBench runs single lines, for tests that inspect the machine between them.
#pragma once

#include <sstream>

#include "desk/script/Inspectables.hpp"
#include "desk/script/Interpreter.hpp"

namespace orvane::desk::script {

struct ScriptBench {
  Session session;
  const InspectableTable inspectables = standardInspectables();
  const CommandTable commands = standardCommands();
  std::ostringstream output;
  ScriptContext context{.session = session,
                        .inspectables = inspectables,
                        .output = output,
                        .limits = {},
                        .pictureWriter = {},
                        .expectationFailed = {}};
  Interpreter interpreter{commands, context};
};

}  // namespace orvane::desk::script
