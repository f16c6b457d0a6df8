// The mouse: sends hardware movements through the taps to the pointer and the Dock.
#pragma once

#include <cstdint>
#include <optional>

#include "Orvane/platform/Quartz.hpp"
#include "desk/machine/Counters.hpp"
#include "desk/machine/Displays.hpp"
#include "desk/machine/Dock.hpp"
#include "desk/machine/EventTaps.hpp"
#include "desk/machine/ModifierKeys.hpp"
#include "desk/machine/Pointer.hpp"
#include "desk/machine/PointerListener.hpp"

namespace orvane::desk {

/// The result of one movement of the mouse, in global coordinates.
struct PointerMovement {
  enum class Outcome : std::uint8_t {
    /// There was no display, or the goal was not finite.
    none,
    passed,
    /// A tap changed the event's location.
    movedBack,
    /// A tap dropped the event.
    dropped,
  };

  Outcome outcome = Outcome::none;
  /// Where the movement would have ended on the displays, and where it ended after the taps.
  CGPoint wanted{};
  CGPoint reached{};
};

/// Points are in global coordinates. A movement is complete when the call returns; what the
/// application posted to its main queue meanwhile is served when the run loop next runs.
class Mouse {
 public:
  /// Whether the location that a tap sets in a movement also holds the cursor. If `free`, the
  /// cursor goes where the hand moves it, and only what follows the taps, the Dock and the windows,
  /// sees the changed location. Apple does not document which is right.
  enum class Cursor : std::uint8_t { held, free };
  void setCursor(Cursor cursor) { cursor_ = cursor; }
  [[nodiscard]] Cursor cursor() const { return cursor_; }

  Mouse(const Displays& displays, Pointer& pointer, EventTaps& taps, Dock& dock,
        const ModifierKeys& modifierKeys, Counters& counters)
      : displays_(displays),
        pointer_(pointer),
        taps_(taps),
        dock_(dock),
        modifierKeys_(modifierKeys),
        counters_(counters) {}

  /// Moves the mouse by a distance in points. Does nothing without a display or when the distance
  /// is not finite.
  PointerMovement moveBy(double dx, double dy) {
    const CGPoint place = pointer_.location();
    return moveTo({place.x + dx, place.y + dy});
  }
  /// Moves the mouse towards `goal`, likewise.
  PointerMovement moveTo(CGPoint goal);

  /// Presses or releases the button; does nothing when it already is. While it is pressed,
  /// movements are drag events, not mouse-moved events, as on a Mac.
  void pressButton();
  void releaseButton();
  [[nodiscard]] bool isButtonPressed() const { return isButtonPressed_; }
  /// Scrolls by distances in points; positive ones towards the end of the content.
  void turnWheel(double horizontal, double vertical);

  /// Passes a mouse-moved event from another source through the taps, without moving the pointer.
  /// Returns its final location, none when a tap dropped it.
  std::optional<CGPoint> post(CGPoint location, std::uint64_t flags);

  /// Null for none. Not owned.
  void setListener(PointerListener* listener) { listener_ = listener; }

 private:
  /// Sends the movement through the taps; `followed` is the pointer as seen after them.
  PointerMovement deliver(CGPoint goal, CGPoint wanted, Pointer& followed);
  /// Sends an event of that type at the pointer's location; false when a tap dropped it.
  bool sendEvent(CGEventType type);

  const Displays& displays_;
  Pointer& pointer_;
  EventTaps& taps_;
  Dock& dock_;
  const ModifierKeys& modifierKeys_;
  Counters& counters_;
  PointerListener* listener_ = nullptr;
  Cursor cursor_ = Cursor::held;
  bool isButtonPressed_ = false;
};

}  // namespace orvane::desk
