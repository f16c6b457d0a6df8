// A session of two displays, seen as hardware.
#pragma once

#include <gtest/gtest.h>

#include "showroom/hardware/HardwareContent.hpp"
#include "showroom/window/DeskSession.hpp"

namespace orvane::showroom {

class HardwareFixture : public testing::Test {
 protected:
  [[nodiscard]] HardwareContent content() const { return session.hardwareContent(false); }

  DeskSession session{2};
  Hardware& hardware = session.hardware();
  desk::Machine& machine = session.machine();
};

}  // namespace orvane::showroom
