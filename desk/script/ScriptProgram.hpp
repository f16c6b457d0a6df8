// ScriptProgram runs scripts: the program behind "orvane-desk script".
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "desk/script/Commands.hpp"
#include "desk/script/Inspectables.hpp"
#include "desk/script/ScriptContext.hpp"

namespace orvane::desk::script {

class ScriptProgram {
 public:
  /// The exit status of the program.
  enum Status {
    /// All expectations held.
    held = 0,
    /// An expectation failed; the script ran to its end.
    failed = 1,
    /// A command failed; the script stopped there.
    broken = 2,
  };

  struct Settings {
    CommandTable commands = standardCommands();
    InspectableTable inspectables = standardInspectables();
    /// Called for each new machine.
    Session::Prepare prepare;
    PictureWriter pictureWriter;
    ScriptLimits limits;
  };

  /// Scripts print to `output`; problems go to `errors`, one line each. `input` is the file "-".
  /// All streams must outlive the program.
  ScriptProgram(Settings settings, std::istream& input, std::ostream& output, std::ostream& errors);

  /// Runs each file on a new machine and returns the worst status; stops after a file with status
  /// `broken`.
  Status runFiles(const std::vector<std::string>& files);
  /// Runs one script; `name` is its file name in messages.
  Status run(std::istream& script, const std::string& name);

 private:
  Status runFile(const std::string& file);
  Status reportUnreadable(const std::string& file, const std::string& reason);

  Settings settings_;
  std::istream& input_;
  std::ostream& output_;
  std::ostream& errors_;
};

}  // namespace orvane::desk::script
