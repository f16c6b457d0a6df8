// ScriptBench runs single lines, for tests that inspect the machine between them.
#pragma once

#include <sstream>

#include "desk/script/Commands.hpp"
#include "desk/script/Inspectables.hpp"

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

  Problem run(std::string_view line) { return commands.run(line, context); }
};

}  // namespace orvane::desk::script
