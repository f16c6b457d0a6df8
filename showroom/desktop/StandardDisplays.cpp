// The displays are small, so that texts are legible in a window that shows several of them.
#include "showroom/desktop/StandardDisplays.hpp"

#include <algorithm>
#include <array>

namespace orvane::showroom {

namespace {

struct StandardDisplay {
  const char* uuid;
  const char* name;
  CGRect frame;
};

/// The built-in display, one to its right, one to its left and one above.
constexpr std::array<StandardDisplay, standardDisplayCount> standardDisplays{{
    {"5B0F6D2E-0001-4C7A-9E51-6F72B0A90001", "Built-in Display", {{0, 0}, {1024, 640}}},
    {"5B0F6D2E-0002-4C7A-9E51-6F72B0A90002", "Right Display", {{1024, 0}, {1120, 700}}},
    {"5B0F6D2E-0003-4C7A-9E51-6F72B0A90003", "Left Display", {{-1120, 0}, {1120, 700}}},
    {"5B0F6D2E-0004-4C7A-9E51-6F72B0A90004", "Upper Display", {{-48, 700}, {1120, 700}}},
}};

}  // namespace

std::optional<desk::Display> nextStandardDisplay(const desk::Machine& machine) {
  const auto& attached = machine.displays.all();
  std::uint32_t number = 0;
  for (const auto& [uuid, name, frame] : standardDisplays) {
    ++number;
    if (std::ranges::find(attached, uuid, &desk::Display::uuid) == attached.end()) {
      return desk::Display{
          .number = number, .uuid = uuid, .name = name, .frame = frame, .isBuiltIn = number == 1};
    }
  }
  return std::nullopt;
}

std::uint32_t attachNextStandardDisplay(desk::Machine& machine) {
  const auto display = nextStandardDisplay(machine);
  return display && !machine.displays.attach(*display) ? display->number : 0;
}

}  // namespace orvane::showroom
