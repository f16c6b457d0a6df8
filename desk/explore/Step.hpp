// Step is one script line with the observations before and after it.
#pragma once

#include <string>

#include "desk/explore/FilterWatch.hpp"
#include "desk/explore/Observation.hpp"

namespace orvane::desk::explore {

struct Step {
  const std::string& line;
  /// The line, or the press that it amounts to if it is a click or a key.
  const std::string& operation;
  /// The line had no error.
  bool hasRun;
  const Observation& before;
  const Observation& after;
  const FilterWatch::Step& filter;
  /// Displays or Dock have changed and the application may not have been notified.
  bool isStale;
  /// The application was notified of its displays in this step.
  bool wasNotified;
  const Machine& machine;

  [[nodiscard]] bool isLaunch() const { return !before.isLaunched && after.isLaunched; }
  [[nodiscard]] bool isEnd() const { return before.isLaunched && !after.isLaunched; }
  /// The application runs before and after it.
  [[nodiscard]] bool isWithinRun() const { return before.isLaunched && after.isLaunched; }
  /// Whether the line is a command of a user who operates the application.
  [[nodiscard]] bool isUserAction() const;
};

/// The command of a script line.
[[nodiscard]] std::string_view firstWord(std::string_view line);

}  // namespace orvane::desk::explore
