// The mouse: hardware movements on their way from the device to the pointer and the Dock.
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
#include "desk/machine/PointerMovement.hpp"

namespace orvane::desk {

/// Points are in global coordinates. A movement is complete when the call returns; what the
/// application put on its main queue meanwhile is served when the run loop next runs.
class Mouse {
 public:
  /// Whether the location that a tap puts into a movement also holds the cursor; otherwise the
  /// cursor goes where the hand moves it, and only what follows the taps, the Dock and the windows,
  /// goes by the changed event. No header of the Mac says which it is.
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

  /// The hand moves the mouse by so many points. Without a display nothing happens, nor for a
  /// movement that is not finite.
  PointerMovement moveBy(double dx, double dy) {
    const CGPoint place = pointer_.place();
    return moveTo({place.x + dx, place.y + dy});
  }
  /// A movement that wants to end at `goal`.
  PointerMovement moveTo(CGPoint goal);

  /// The button goes down, or up; what is not a change does nothing. While it is down, movements
  /// are drags and no mouse-moved events, as on a Mac.
  void pressButton();
  void releaseButton();
  [[nodiscard]] bool isButtonPressed() const { return isButtonPressed_; }
  /// The wheel turns by these distances in points; positive ones go towards the end of the content.
  void turnWheel(double horizontal, double vertical);

  /// A mouse-moved event from elsewhere, straight into the taps; it moves no pointer. Returns where
  /// it comes out, none when a tap swallowed it.
  std::optional<CGPoint> post(CGPoint location, std::uint64_t flags);

  /// Null for none. Not owned.
  void setListener(PointerListener* listener) { listener_ = listener; }

 private:
  /// Sends the movement through the taps; `followed` is the pointer as what follows them knows it.
  PointerMovement deliver(CGPoint goal, CGPoint wanted, Pointer& followed);
  /// An event of that type at the pointer's place; false when a tap swallowed it.
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
