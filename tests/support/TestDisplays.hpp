// The displays of most tests: a laptop and monitors around it, at integer coordinates.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "desk/machine/Machine.hpp"

namespace orvane::desk {

/// A UUID text for a display, independent of its number.
inline std::string uuidNamed(char letter) {
  return std::string("00000000-0000-4000-8000-00000000000") + letter;
}

/// The frame is in window-system coordinates.
inline Display displayOf(std::uint32_t number, std::string name, CGRect frame) {
  Display display;
  display.number = number;
  display.name = std::move(name);
  display.frame = frame;
  return display;
}

/// Display 1, 1920 by 1080 points: attached first, it is at the origin of both coordinate systems.
inline Display laptop() {
  Display display = displayOf(1, "Color LCD", {{0, 0}, {1920, 1080}});
  display.uuid = uuidNamed('A');
  display.isBuiltIn = true;
  return display;
}

/// Display 2, to the right of the laptop: x 1920 to 3840, y 0 to 1080 in global coordinates.
inline Display monitorAtTheRight() {
  Display display = displayOf(2, "Studio", {{1920, 0}, {1920, 1080}});
  display.uuid = uuidNamed('B');
  return display;
}

/// Display 3, above the laptop: x 0 to 1920, y -1080 to 0 in global coordinates. The laptop covers
/// its whole lower edge.
inline Display monitorAbove() {
  Display display = displayOf(3, "Wall", {{0, 1080}, {1920, 1080}});
  display.uuid = uuidNamed('C');
  return display;
}

inline void attach(Machine& machine, Display display, bool asMain = false) {
  EXPECT_EQ(machine.displays.attach(std::move(display), asMain), std::nullopt);
}

inline void detach(Machine& machine, std::uint32_t number) {
  EXPECT_EQ(machine.displays.detach(number), std::nullopt);
}

inline void setDockOrientation(Machine& machine, PropertyValue value) {
  Dock::store(machine.preferences, Dock::orientationKey, std::move(value));
}
inline void setDockAutoHide(Machine& machine, bool hides) {
  Dock::store(machine.preferences, Dock::autoHideKey, hides);
}

}  // namespace orvane::desk
