// The pointer: its location, confined to the displays.
#pragma once

#include <cstddef>
#include <optional>

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Displays.hpp"

namespace orvane::desk {

/// All points are in global coordinates.
class Pointer {
 public:
  explicit Pointer(const Displays& displays) : displays_(displays) {}

  [[nodiscard]] CGPoint location() const { return location_; }
  /// The index of its display; none while there is no display.
  [[nodiscard]] std::optional<std::size_t> displayIndex() const;

  /// `goal` if a display contains it, otherwise the nearest location on the pointer's display.
  /// There must be a display.
  [[nodiscard]] CGPoint reachable(CGPoint goal) const {
    return displays_.indexContaining(goal, displayIndex_) ? goal : clampedToDisplay(goal);
  }
  /// Moves the pointer to the reachable location nearest to `goal`; ignores a goal that is not
  /// finite. There must be a display.
  void settle(CGPoint goal);

  /// After a display change, moves a pointer that is on no display to the nearest location on one.
  void displaysChanged();

  /// The pointer location in `frame` nearest to `point`, at least one point from the far edges.
  [[nodiscard]] static CGPoint clamped(CGPoint point, CGRect frame);

 private:
  [[nodiscard]] CGPoint clampedToDisplay(CGPoint goal) const;

  const Displays& displays_;
  CGPoint location_{0, 0};
  std::size_t displayIndex_ = 0;
};

}  // namespace orvane::desk
