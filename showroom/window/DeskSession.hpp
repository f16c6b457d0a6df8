// DeskSession is the desk that someone plays with: a machine, the application on it, and what the
// spectator wants to have shown. It knows nothing of windows and no time but the machine's.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "desk/application/ApplicationHost.hpp"
#include "desk/hand/Hand.hpp"
#include "desk/machine/MachineScope.hpp"
#include "showroom/desktop/DesktopScene.hpp"
#include "showroom/hardware/HardwareContent.hpp"
#include "showroom/window/EventRate.hpp"

namespace orvane::showroom {

class DeskSession {
 public:
  /// How long a movement that was moved back stays marked.
  static constexpr std::int64_t markNanoseconds = 450'000'000;

  /// With so many of the standard displays (at least one), the permission granted and the
  /// application running.
  explicit DeskSession(std::size_t displayCount);

  [[nodiscard]] desk::Machine& machine() { return scope_.machine(); }
  [[nodiscard]] const desk::Machine& machine() const { return scope_.machine(); }
  [[nodiscard]] desk::ApplicationHost& application() { return application_; }
  [[nodiscard]] const desk::ApplicationHost& application() const { return application_; }

  /// The hand moves the mouse by so many points.
  void movePointerBy(double dx, double dy);
  /// The hand with the mouse button and the keys.
  [[nodiscard]] desk::Hand hand() { return desk::Hand(machine()); }
  /// Lets the machine's time pass.
  void advance(std::int64_t nanoseconds);

  [[nodiscard]] Hardware& hardware() { return hardware_; }
  [[nodiscard]] const Hardware& hardware() const { return hardware_; }
  /// What the hardware panel has to say. `isMouseHeld` says whether the window has captured the
  /// mouse.
  [[nodiscard]] HardwareContent hardwareContent(bool isMouseHeld) const;

  [[nodiscard]] DesktopScene scene() const;
  [[nodiscard]] std::int64_t eventsPerSecond() const;
  [[nodiscard]] std::optional<MovedBack> movedBack() const;
  /// Nanoseconds until the picture changes if nobody touches anything; 0 while something moves.
  [[nodiscard]] std::int64_t nanosecondsToNextChange() const;

  /// The number of the display under the pointer; 0 without a display.
  [[nodiscard]] std::uint32_t pointerDisplayNumber() const;

 private:
  desk::MachineScope scope_;
  desk::ApplicationHost application_;
  Hardware hardware_;
  EventRate rate_;
  std::optional<MovedBack> movedBack_;
  std::int64_t movedBackAt_ = 0;
};

}  // namespace orvane::showroom
