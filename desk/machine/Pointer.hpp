// The pointer: where it is, and where the displays let it be.
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

  [[nodiscard]] CGPoint place() const { return place_; }
  /// The place in the list of displays; none while there is no display.
  [[nodiscard]] std::optional<std::size_t> displayIndex() const;

  /// `goal` where a display contains it, otherwise the nearest place on the display that the
  /// pointer is on. There must be a display.
  [[nodiscard]] CGPoint reachable(CGPoint goal) const {
    return displays_.indexContaining(goal, displayIndex_) ? goal : clampedToDisplay(goal);
  }
  /// Puts the pointer to the reachable place nearest to `goal`; one that is not finite leaves it
  /// where it is. There must be a display.
  void settle(CGPoint goal);

  /// Displays came, went or moved: a pointer that is on none goes to the nearest place on one.
  void displaysChanged();

  /// The nearest place that a pointer can take in `frame`: at most one point inside the far edges.
  [[nodiscard]] static CGPoint clamped(CGPoint point, CGRect frame);

 private:
  [[nodiscard]] CGPoint clampedToDisplay(CGPoint goal) const;

  const Displays& displays_;
  CGPoint place_{0, 0};
  std::size_t displayIndex_ = 0;
};

}  // namespace orvane::desk
