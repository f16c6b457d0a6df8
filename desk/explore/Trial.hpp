// Trial carries out lines of a script on a machine of its own and looks after each of them whether
// all is as it must be.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "desk/explore/Fingerprint.hpp"
#include "desk/explore/Moment.hpp"
#include "desk/explore/RarePaths.hpp"
#include "desk/explore/Safety.hpp"
#include "desk/script/InspectableTable.hpp"
#include "desk/script/Interpreter.hpp"

namespace orvane::desk::explore {

/// Only one at a time, since there is one current machine in a process.
class Trial {
 public:
  Trial();
  Trial(const Trial&) = delete;
  Trial& operator=(const Trial&) = delete;

  /// A line that cannot be carried out, such as a press of what is not there, does nothing. After a
  /// violation, no line does anything.
  void take(const std::string& line);
  void takeAll(const std::vector<std::string>& lines);
  /// Ends the machine; what the application has left behind is a violation.
  void end();
  [[nodiscard]] const std::optional<Violation>& violation() const { return violation_; }
  /// Records a violation found outside of a single step; the first one stays.
  void complain(Violation violation);

  [[nodiscard]] Machine& machine() const { return session_->machine(); }
  [[nodiscard]] ApplicationHost& application() const { return session_->application(); }
  [[nodiscard]] const Moment& moment() const { return moment_; }
  [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }
  [[nodiscard]] std::int64_t eventCount() const { return events_; }
  [[nodiscard]] const Fingerprint& fingerprint() const { return fingerprint_; }
  [[nodiscard]] const RarePaths& rarePaths() const { return rarePaths_; }

 private:
  std::unique_ptr<script::Session> session_ = std::make_unique<script::Session>();
  std::unique_ptr<Safety> safety_;
  script::CommandTable commands_ = script::standardCommands();
  script::InspectableTable inspectables_;
  std::ostringstream output_;
  script::ScriptContext context_;
  script::Interpreter interpreter_;
  Moment moment_;
  std::vector<std::string> lines_;
  std::optional<Violation> violation_;
  Fingerprint fingerprint_;
  RarePaths rarePaths_;
  std::int64_t events_ = 0;
};

}  // namespace orvane::desk::explore
