// The Dock: it is at one edge of one display, moves to another display when the pointer presses
// against that edge there, and hides and appears. It counts its appearances per display.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <utility>

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Clock.hpp"
#include "desk/machine/Displays.hpp"
#include "desk/machine/DockEdge.hpp"
#include "desk/machine/Preferences.hpp"

namespace orvane::desk {

class Dock {
 public:
  static constexpr const char* preferencesDomain = "com.apple.dock";
  static constexpr const char* orientationKey = "orientation";
  static constexpr const char* autoHideKey = "autohide";

  /// The depth of its area, in points. An auto-hiding Dock stays shown while the pointer is in the
  /// area.
  static constexpr double depth = 70;
  /// How near to the edge the pointer must be to press against it, in points: the outermost
  /// location to which the pointer is clamped.
  static constexpr double touchDepth = 1;
  /// A display whose facing edge is this near, in points, is a neighbour: the edge that it covers
  /// does not summon the Dock.
  static constexpr double neighbourTolerance = 2;
  static constexpr std::int64_t slideNanoseconds = 250'000'000;

  Dock(const Displays& displays, const Clock& clock) : displays_(displays), clock_(clock) {}

  /// Reads the edge and auto-hiding from the Dock's preferences. Any orientation other than "left"
  /// or "right" means the bottom; any value of auto-hide other than true means shown.
  void readPreferences(const Preferences& preferences, CGPoint pointerPlace);
  /// Stores a value for orientationKey or autoHideKey.
  static void store(Preferences& preferences, const char* key, PropertyValue value) {
    preferences.set({preferencesDomain}, key, std::move(value));
  }
  [[nodiscard]] DockEdge edge() const { return edge_; }
  [[nodiscard]] bool autoHides() const { return autoHides_; }

  /// `changed` is called after the Dock has appeared, hidden, moved to another display or read its
  /// preferences.
  void onChange(std::function<void()> changed) { changed_ = std::move(changed); }

  /// When its display is gone, the Dock moves to the main display. A Dock on the main display
  /// follows when another display becomes main. Neither counts as an appearance.
  void displaysChanged(CGPoint pointerPlace);

  /// The pointer was moved towards `goal` and, clamped and filtered, ended at `place` on the
  /// display at `displayIndex`. Global coordinates.
  void pointerMoved(CGPoint goal, CGPoint place, std::size_t displayIndex) {
    if (isAtEdge(place, displays_.globalFrames()[displayIndex], touchDepth)) {
      pressed(goal, place, displayIndex);
    } else if (hidesWhenLeft_ && !isInArea(place)) {
      setVisible(false);
    }
  }

  /// The number of its display; none when there is no display.
  [[nodiscard]] std::optional<std::uint32_t> displayNumber() const;
  [[nodiscard]] std::optional<std::size_t> displayIndex() const;
  /// False while it is hidden, and when there is no display.
  [[nodiscard]] bool isVisible() const { return isVisible_; }
  /// Where it is drawn when fully shown, in global coordinates; empty when there is no display.
  [[nodiscard]] CGRect frame() const;
  /// The part of a display that the menu bar and the shown Dock leave to windows, in window-system
  /// coordinates. As on a Mac, it changes at once when the Dock begins to slide.
  [[nodiscard]] CGRect visibleFrameOf(const Display& display) const;
  /// From 0, hidden, to 1, shown; in between while it slides.
  [[nodiscard]] double shownFraction() const;

  /// How often it appeared on each display, by the display's number at that time. Being there from
  /// the start does not count.
  [[nodiscard]] const std::map<std::uint32_t, std::int64_t>& reveals() const { return reveals_; }
  [[nodiscard]] std::int64_t revealCount(std::uint32_t displayNumber) const;
  /// On all displays together.
  [[nodiscard]] std::int64_t revealCount() const;

 private:
  /// Whether a place is less than `reach` points from the edge, or beyond it.
  [[nodiscard]] bool isAtEdge(CGPoint place, const CGRect& frame, double reach) const {
    switch (edge_) {
      case DockEdge::bottom:
        return place.y >= frame.origin.y + frame.size.height - reach;
      case DockEdge::left:
        return place.x < frame.origin.x + reach;
      case DockEdge::right:
        return place.x >= frame.origin.x + frame.size.width - reach;
    }
    return false;
  }
  void pressed(CGPoint goal, CGPoint place, std::size_t displayIndex);
  [[nodiscard]] bool hasNeighbourBehind(CGPoint place, std::size_t displayIndex) const;
  [[nodiscard]] bool isInArea(CGPoint place) const;
  void countReveal();
  void setVisible(bool visible);

  const Displays& displays_;
  const Clock& clock_;
  DockEdge edge_ = DockEdge::bottom;
  bool autoHides_ = false;
  bool isVisible_ = false;
  /// Auto-hiding and shown: the only case in which a movement away from the edge matters.
  bool hidesWhenLeft_ = false;
  /// 0 when there is no display.
  std::uint64_t displayIdentity_ = 0;
  std::uint64_t mainIdentity_ = 0;
  /// The start of the last slide by the clock. For a slide that was reversed half way, the time at
  /// which a full slide would have begun.
  std::int64_t slideStartedAt_ = -slideNanoseconds;
  std::map<std::uint32_t, std::int64_t> reveals_;
  std::function<void()> changed_;
};

}  // namespace orvane::desk
