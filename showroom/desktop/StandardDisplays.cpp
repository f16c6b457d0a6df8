// Small displays, so that a window that shows several of them shows their texts legibly.
#include "showroom/desktop/StandardDisplays.hpp"

#include <algorithm>
#include <string>

#include "Orvane/base/Require.hpp"

namespace orvane::showroom {

desk::Display standardDisplay(std::size_t position) {
  require(position < standardDisplayCount, "there are only so many standard displays");
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

std::uint32_t attachNextStandardDisplay(desk::Machine& machine) {
  for (std::size_t position = 0; position < standardDisplayCount; ++position) {
    const desk::Display display = standardDisplay(position);
    const auto& attached = machine.displays.all();
    const bool isAttached = std::any_of(attached.begin(), attached.end(), [&](const auto& other) {
      return other.uuid == display.uuid;
    });
    if (!isAttached && !machine.displays.attach(display)) {
      return display.number;
    }
  }
  return 0;
}

}  // namespace orvane::showroom
