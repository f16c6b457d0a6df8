// The Dock: it lives at one edge of one display, follows a pointer that presses against that edge
// of another, hides and comes up. It counts how often it came up, and where.
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

  /// How far its area reaches from the edge, in points. A hidden Dock that came up stays while the
  /// pointer is there.
  static constexpr double depth = 70;
  /// How near to the edge the pointer must be to press against it, in points: the last place that
  /// the clamping of the pointer leaves.
  static constexpr double touchDepth = 1;
  /// A display whose facing edge is so near, in points, is a neighbour: the edge before it does not
  /// summon the Dock.
  static constexpr double neighbourTolerance = 2;
  static constexpr std::int64_t slideNanoseconds = 250'000'000;

  Dock(const Displays& displays, const Clock& clock) : displays_(displays), clock_(clock) {}

  /// Takes its edge and auto-hide from its preferences. Whatever is not the text "left" or "right"
  /// leaves it at the bottom; whatever is not true leaves it shown.
  void readPreferences(const Preferences& preferences, CGPoint pointerPlace);
  [[nodiscard]] DockEdge edge() const { return edge_; }
  [[nodiscard]] bool autoHides() const { return autoHides_; }

  /// Called after it has come up, hidden, come to another display or read its preferences.
  void onChange(std::function<void()> changed) { changed_ = std::move(changed); }

  /// When its display has gone it moves to the main display; one on the main display follows when
  /// another becomes it. Neither counts as coming up.
  void displaysChanged(CGPoint pointerPlace);

  /// A movement of the pointer that wanted to reach `goal` and, clamped and filtered, ended at
  /// `place` on the display at `displayIndex`; in global coordinates.
  void pointerMoved(CGPoint goal, CGPoint place, std::size_t displayIndex) {
    if (isAtEdge(place, displays_.globalFrames()[displayIndex])) {
      pressed(goal, place, displayIndex);
    } else if (hidesWhenLeft_ && !isInArea(place)) {
      setVisible(false);
    }
  }

  /// The number of the display it lives on; none when there is no display.
  [[nodiscard]] std::optional<std::uint32_t> displayNumber() const;
  [[nodiscard]] std::optional<std::size_t> displayIndex() const;
  /// False while it is hidden, and when there is no display.
  [[nodiscard]] bool isVisible() const { return isVisible_; }
  /// Where it is drawn when it has come up all the way, in global coordinates; empty when there is
  /// no display.
  [[nodiscard]] CGRect frame() const;
  /// 0 hidden to 1 shown, in between while it slides, at the present time.
  [[nodiscard]] double shownFraction() const;
  /// When it last began to slide in or out, in nanoseconds of the machine's clock; a slide takes
  /// slideNanoseconds. Earlier than the turn itself when it turned round half way.
  [[nodiscard]] std::int64_t slideStartedAt() const { return slideStartedAt_; }

  /// How often it came up on each display, by the number the display had then. A Dock that lives
  /// there from the start has not come up.
  [[nodiscard]] const std::map<std::uint32_t, std::int64_t>& reveals() const { return reveals_; }
  [[nodiscard]] std::int64_t revealCount(std::uint32_t displayNumber) const;

 private:
  [[nodiscard]] bool isAtEdge(CGPoint place, const CGRect& frame) const {
    switch (edge_) {
      case DockEdge::bottom:
        return place.y >= frame.origin.y + frame.size.height - touchDepth;
      case DockEdge::left:
        return place.x < frame.origin.x + touchDepth;
      case DockEdge::right:
        return place.x >= frame.origin.x + frame.size.width - touchDepth;
    }
    return false;
  }
  void pressed(CGPoint goal, CGPoint place, std::size_t displayIndex);
  [[nodiscard]] bool isBeyondEdge(CGPoint goal, const CGRect& frame) const;
  [[nodiscard]] bool hasNeighbourBehind(CGPoint place, std::size_t displayIndex) const;
  [[nodiscard]] bool isInArea(CGPoint place) const;
  void countReveal();
  void setVisible(bool visible);

  const Displays& displays_;
  const Clock& clock_;
  DockEdge edge_ = DockEdge::bottom;
  bool autoHides_ = false;
  bool isVisible_ = false;
  /// Auto-hiding and up: the one case in which a movement away from the edge matters.
  bool hidesWhenLeft_ = false;
  /// 0 when there is no display.
  std::uint64_t displayIdentity_ = 0;
  std::uint64_t mainIdentity_ = 0;
  std::int64_t slideStartedAt_ = -slideNanoseconds;
  std::map<std::uint32_t, std::int64_t> reveals_;
  std::function<void()> changed_;
};

}  // namespace orvane::desk
