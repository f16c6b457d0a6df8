// DeskSession is the interactive desk without its window: a machine, the application, the hardware
// and the marks to draw. It knows only the machine's time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

#include "desk/application/ApplicationHost.hpp"
#include "desk/hand/Hand.hpp"
#include "desk/machine/MachineScope.hpp"
#include "showroom/desktop/DesktopScene.hpp"
#include "showroom/hardware/HardwareContent.hpp"

namespace orvane::showroom {

class DeskSession {
 public:
  /// How long a movement that was moved back is marked.
  static constexpr std::int64_t markNanoseconds = 450'000'000;

  /// Attaches the standard displays up to `displayCount` (at least one), grants the permission and
  /// launches the application.
  explicit DeskSession(std::size_t displayCount);

  [[nodiscard]] desk::Machine& machine() { return scope_.machine(); }
  [[nodiscard]] const desk::Machine& machine() const { return scope_.machine(); }
  [[nodiscard]] desk::ApplicationHost& application() { return application_; }
  [[nodiscard]] const desk::ApplicationHost& application() const { return application_; }

  /// Moves the mouse, in points.
  void movePointerBy(double dx, double dy);
  /// Operates the mouse button and the keys.
  [[nodiscard]] desk::Hand hand() { return desk::Hand(machine()); }
  /// Advances the machine's time.
  void advance(std::int64_t nanoseconds);

  [[nodiscard]] Hardware& hardware() { return hardware_; }
  [[nodiscard]] const Hardware& hardware() const { return hardware_; }
  /// The content of the hardware panel. `isMouseHeld`: the window has captured the mouse.
  [[nodiscard]] HardwareContent hardwareContent(bool isMouseHeld) const;

  [[nodiscard]] DesktopScene scene() const;
  /// The number of movements in the last second.
  [[nodiscard]] std::int64_t eventsPerSecond() const;
  [[nodiscard]] std::optional<MovedBack> movedBack() const;
  /// Nanoseconds until the picture changes without input; 0 during an animation.
  [[nodiscard]] std::int64_t nanosecondsToNextChange() const;

 private:
  desk::MachineScope scope_;
  desk::ApplicationHost application_;
  Hardware hardware_;
  /// The times of the last second's movements.
  std::deque<std::int64_t> movedAt_;
  std::optional<MovedBack> movedBack_;
  std::int64_t movedBackAt_ = 0;
};

}  // namespace orvane::showroom
