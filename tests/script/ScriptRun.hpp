// Runs a script in the test's process; ScriptRun is its result.
#pragma once

#include <sstream>
#include <string>
#include <utility>

#include "desk/script/ScriptProgram.hpp"

namespace orvane::desk::script {

struct ScriptRun {
  int status = 0;
  std::string output;
  std::string errors;
};

/// The file name in messages is "script.desk".
inline ScriptRun runScript(const std::string& text, ScriptProgram::Settings settings = {}) {
  std::istringstream nothing;
  std::istringstream script(text);
  std::ostringstream output;
  std::ostringstream errors;
  ScriptProgram program(std::move(settings), nothing, output, errors);
  const int status = program.run(script, "script.desk");
  return {status, output.str(), errors.str()};
}

/// The problem of the last line, without file and line; empty on success.
inline std::string problemOf(const std::string& text, ScriptProgram::Settings settings = {}) {
  const ScriptRun run = runScript(text, std::move(settings));
  const std::size_t place = run.errors.find(": ");
  if (run.status != ScriptProgram::broken || place == std::string::npos) {
    return run.errors;
  }
  return run.errors.substr(place + 2, run.errors.size() - place - 3);
}

/// Two displays of 1920 by 1080 points side by side; the left one is the main one.
inline const std::string twoDisplays =
    "display attach 1 frame=0,0,1920,1080 uuid=AAAA name=\"Left\" main\n"
    "display attach 2 frame=1920,0,1920,1080 uuid=BBBB name=\"Right\"\n";

/// The same, with the application running and the Dock pinned to the left display.
inline const std::string pinned =
    twoDisplays + "trust on\nlaunch\ndo refreshDisplays\ndo toggleSelectedDisplayLock\n";

}  // namespace orvane::desk::script
