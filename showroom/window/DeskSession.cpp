// Records pointer movements for the event rate and the mark.
#include "showroom/window/DeskSession.hpp"

#include <algorithm>

#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/MenuClock.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "showroom/settings/SettingsPages.hpp"

namespace orvane::showroom {

namespace {

/// From the machine's start at midnight to 10:08.
constexpr double secondsToMorning = (10 * 60 + 8) * 60;
constexpr std::int64_t second = desk::Clock::nanosecondsPerSecond;

}  // namespace

DeskSession::DeskSession(std::size_t displayCount)
    : application_(scope_.machine()), hardware_{scope_.machine(), application_} {
  addSettingsPages(application_.systemSettings());
  const std::size_t count = std::clamp<std::size_t>(displayCount, 1, standardDisplayCount);
  for (std::size_t position = 0; position < count; ++position) {
    attachNextStandardDisplay(machine());
  }
  const CGRect first = machine().displays.globalFrames().front();
  machine().mouse.moveTo({first.size.width / 2, first.size.height / 2});
  // The wallpaper shows day, so the clock does, too.
  machine().advance(secondsToMorning);
  machine().permission.setTrusted(true);
  application_.launch();
}

void DeskSession::movePointerBy(double dx, double dy) {
  desk::Machine& desk = machine();
  const desk::PointerMovement movement = desk.mouse.moveBy(dx, dy);
  if (movement.outcome == desk::PointerMovement::Outcome::none) {
    return;
  }
  desk.runDue();
  while (!movedAt_.empty() && movedAt_.front() <= desk.clock.now() - second) {
    movedAt_.pop_front();
  }
  movedAt_.push_back(desk.clock.now());
  if (movement.outcome == desk::PointerMovement::Outcome::movedBack) {
    movedBack_ = MovedBack{movement.wanted, movement.reached, 1};
    movedBackAt_ = desk.clock.now();
  }
}

void DeskSession::advance(std::int64_t nanoseconds) {
  machine().runLoop.advance(nanoseconds);
}

std::optional<MovedBack> DeskSession::movedBack() const {
  const std::int64_t age = machine().clock.now() - movedBackAt_;
  if (!movedBack_ || age >= markNanoseconds) {
    return std::nullopt;
  }
  MovedBack mark = *movedBack_;
  mark.strength = 1 - static_cast<double>(age) / static_cast<double>(markNanoseconds);
  return mark;
}

DesktopScene DeskSession::scene() const {
  DesktopScene scene(machine(), application_);
  scene.showsZones = hardware_.showsZones;
  scene.movedBack = movedBack();
  return scene;
}

std::int64_t DeskSession::eventsPerSecond() const {
  return std::ranges::count_if(
      movedAt_, [end = machine().clock.now() - second](std::int64_t time) { return time > end; });
}

std::int64_t DeskSession::nanosecondsToNextChange() const {
  const desk::Machine& desk = machine();
  const std::int64_t now = desk.clock.now();
  const double shown = desk.dock.shownFraction();
  const bool isSliding = shown > 0 && shown < 1;
  const bool startsSliding =
      desk.dock.displayNumber() && shown != (desk.dock.isVisible() ? 1.0 : 0.0);
  if (isSliding || startsSliding || movedBack()) {
    return 0;
  }
  std::int64_t next = nanosecondsToNextMinute(desk.clock);
  if (const auto due = desk.runLoop.nextDue()) {
    next = std::min(next, std::max<std::int64_t>(*due - now, 0));
  }
  if (eventsPerSecond() > 0) {
    next = std::min(next, std::max<std::int64_t>(movedAt_.back() + second - now, 0));
  }
  return next;
}

HardwareContent DeskSession::hardwareContent(bool isMouseHeld) const {
  HardwareContent content = HardwareContent::of(hardware_, eventsPerSecond());
  content.hint =
      isMouseHeld ? "The desk holds the mouse and has the keys. Escape gives it back."
                  : "Click a screen, and the desk holds the mouse: edges can be pressed against.";
  return content;
}

}  // namespace orvane::showroom
