// The displays are small, so that texts are legible in a window that shows several of them.
#include "showroom/desktop/StandardDisplays.hpp"

#include <algorithm>
#include <string>

namespace orvane::showroom {

namespace {

/// The built-in display, one to its right, one to its left and one above.
desk::Display standardDisplay(std::size_t position) {
  desk::Display display;
  display.number = static_cast<std::uint32_t>(position + 1);
  switch (position) {
    case 0:
      display.uuid = "5B0F6D2E-0001-4C7A-9E51-6F72B0A90001";
      display.name = "Built-in Display";
      display.isBuiltIn = true;
      display.frame = CGRectMake(0, 0, 1024, 640);
      break;
    case 1:
      display.uuid = "5B0F6D2E-0002-4C7A-9E51-6F72B0A90002";
      display.name = "Right Display";
      display.frame = CGRectMake(1024, 0, 1120, 700);
      break;
    case 2:
      display.uuid = "5B0F6D2E-0003-4C7A-9E51-6F72B0A90003";
      display.name = "Left Display";
      display.frame = CGRectMake(-1120, 0, 1120, 700);
      break;
    default:
      display.uuid = "5B0F6D2E-0004-4C7A-9E51-6F72B0A90004";
      display.name = "Upper Display";
      display.frame = CGRectMake(-48, 700, 1120, 700);
      break;
  }
  return display;
}

}  // namespace

std::optional<desk::Display> nextStandardDisplay(const desk::Machine& machine) {
  const auto& attached = machine.displays.all();
  for (std::size_t position = 0; position < standardDisplayCount; ++position) {
    desk::Display display = standardDisplay(position);
    if (std::ranges::find(attached, display.uuid, &desk::Display::uuid) == attached.end()) {
      return display;
    }
  }
  return std::nullopt;
}

std::uint32_t attachNextStandardDisplay(desk::Machine& machine) {
  const auto display = nextStandardDisplay(machine);
  return display && !machine.displays.attach(*display) ? display->number : 0;
}

}  // namespace orvane::showroom
