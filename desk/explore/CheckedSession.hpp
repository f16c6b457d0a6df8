// CheckedSession runs script lines on its own machine and checks the invariants after each.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "desk/explore/Fingerprint.hpp"
#include "desk/explore/InvariantChecker.hpp"
#include "desk/explore/Observation.hpp"
#include "desk/explore/RarePaths.hpp"
#include "desk/script/Commands.hpp"
#include "desk/script/Inspectables.hpp"

namespace orvane::desk::explore {

/// Only one may exist at a time, because a process has one current machine.
class CheckedSession {
 public:
  CheckedSession();
  CheckedSession(const CheckedSession&) = delete;
  CheckedSession& operator=(const CheckedSession&) = delete;

  /// A line that fails, such as a press of a missing control, has no effect. After a violation no
  /// line has.
  void run(const std::string& line);
  /// Why the last line failed.
  [[nodiscard]] const script::Problem& problem() const { return problem_; }
  void runAll(const std::vector<std::string>& lines);
  /// Ends the machine; anything that the application leaves behind is a violation.
  void end();
  [[nodiscard]] const std::optional<Violation>& violation() const { return violation_; }
  /// Records a violation, unless there is one already.
  void report(Violation violation);

  [[nodiscard]] Machine& machine() const { return session_->machine(); }
  [[nodiscard]] ApplicationHost& application() const { return session_->application(); }
  [[nodiscard]] const Observation& observation() const { return observation_; }
  [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }
  [[nodiscard]] std::int64_t eventCount() const { return events_; }
  [[nodiscard]] const Fingerprint& fingerprint() const { return fingerprint_; }
  [[nodiscard]] const RarePaths& rarePaths() const { return rarePaths_; }

 private:
  std::unique_ptr<script::Session> session_ = std::make_unique<script::Session>();
  std::unique_ptr<InvariantChecker> checker_;
  script::CommandTable commands_ = script::standardCommands();
  script::InspectableTable inspectables_ = script::standardInspectables();
  std::ostringstream output_;
  script::Problem problem_;
  script::ScriptContext context_;
  Observation observation_;
  std::vector<std::string> lines_;
  std::optional<Violation> violation_;
  Fingerprint fingerprint_;
  RarePaths rarePaths_;
  std::int64_t events_ = 0;
};

}  // namespace orvane::desk::explore
