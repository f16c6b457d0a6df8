// Operations finds the press of a control that a click or a typed space amounts to.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "desk/explore/Observation.hpp"

namespace orvane::desk::explore {

/// The operation of the shortcut that hides the application; no control does that.
constexpr const char* hidingOperation = "hide";

class Operations {
 public:
  /// The line that presses the same control, if `line` clicks into its middle, types a space while
  /// it has the keyboard focus, or types its shortcut; else `line`. To be called before the line
  /// runs.
  [[nodiscard]] std::string operationOf(const std::string& line) const;
  /// Whether the pointer is where `line` clicks; true for other lines. The guard or a held cursor
  /// may have kept it from there.
  [[nodiscard]] static bool hasReachedTarget(const std::string& line);
  /// To be called after each step.
  void note(const Observation& after);

 private:
  struct Layout {
    std::vector<ui::Rect> frames;
    /// In nanoseconds by the machine's clock.
    std::int64_t since = 0;
  };
  /// A control is invisible at the moment at which it appears, and cannot be clicked then.
  [[nodiscard]] bool hasAppeared(const std::string& surface) const;

  std::map<std::string, Layout> layouts_;
};

}  // namespace orvane::desk::explore
