// Screens on the desk: copies of the machine's displays, taken when the list is read.
#include "Orvane/platform/appkit/Screen.hpp"

#include <utility>

#include "desk/machine/Machine.hpp"
#include "desk/machine/MachineObserver.hpp"

namespace orvane::appkit {

struct Screen::Implementation {
  desk::Display display;
  CGRect visibleFrame;
};

namespace {

Screen screenOf(const desk::Machine& machine, const desk::Display& display) {
  return Screen(std::make_shared<const Screen::Implementation>(
      Screen::Implementation{display, machine.dock.visibleFrameOf(display)}));
}

}  // namespace

Screen::Screen(std::shared_ptr<const Implementation> implementation)
    : implementation_(std::move(implementation)) {}

std::vector<Screen> Screen::screens() {
  desk::recordCall("Screen.screens");
  const desk::Machine& machine = desk::Machine::current();
  std::vector<Screen> all;
  for (const desk::Display& display : machine.displays.all()) {
    all.push_back(screenOf(machine, display));
  }
  return all;
}

std::optional<Screen> Screen::mainScreen() {
  const desk::Machine& machine = desk::Machine::current();
  if (machine.windowServer != nullptr) {
    if (const auto index = machine.windowServer->keyDisplayIndex()) {
      return screenOf(machine, machine.displays.all()[*index]);
    }
  }
  const desk::Display* const main = machine.displays.main();
  return main == nullptr ? std::nullopt : std::optional(screenOf(machine, *main));
}

CGRect Screen::frame() const {
  return implementation_->display.frame;
}

CGRect Screen::visibleFrame() const {
  return implementation_->visibleFrame;
}

std::string Screen::localizedName() const {
  return implementation_->display.name;
}

std::optional<std::int64_t> Screen::deviceNumber(std::string_view key) const {
  const desk::Display& display = implementation_->display;
  if (key == "NSScreenNumber" && display.hasNumberInDescription) {
    return display.number;
  }
  if (key == "NSDeviceBitsPerSample") {
    return display.bitsPerSample;
  }
  return std::nullopt;
}

std::optional<std::string> Screen::deviceString(std::string_view key) const {
  if (key == "NSDeviceColorSpaceName") {
    return implementation_->display.colorSpace;
  }
  return std::nullopt;
}

}  // namespace orvane::appkit
