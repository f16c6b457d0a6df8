// ScriptProgram runs whole scripts: the program behind "orvane-desk script".
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "desk/script/CommandTable.hpp"
#include "desk/script/InspectableTable.hpp"
#include "desk/script/ScriptContext.hpp"

namespace orvane::desk::script {

class ScriptProgram {
 public:
  /// The exit status of the program.
  enum Status {
    /// Every expectation held.
    held = 0,
    /// An expectation failed; the script went on to its end.
    failed = 1,
    /// The script could not be carried out; it stopped there.
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

  /// What scripts print goes to `output`, what is wrong to `errors`, one line each. `input` is the
  /// file "-". All must outlive the program.
  ScriptProgram(Settings settings, std::istream& input, std::ostream& output, std::ostream& errors);

  /// Each file begins with a machine of its own. The worst of their statuses; none is begun after
  /// one that could not be carried out.
  Status runFiles(const std::vector<std::string>& files);
  /// One script; `name` stands for its file in what is reported.
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
