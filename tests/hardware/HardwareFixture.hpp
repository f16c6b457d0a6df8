// A session of two displays, seen as hardware.
#pragma once

#include <gtest/gtest.h>

#include "showroom/hardware/HardwareContent.hpp"
#include "showroom/window/DeskSession.hpp"

namespace orvane::desk {

class HardwareFixture : public testing::Test {
 protected:
  [[nodiscard]] HardwareContent content() const { return session.hardwareContent(false); }

  DeskSession session{2};
  Hardware& hardware = session.hardware();
  Machine& machine = session.machine();
};

}  // namespace orvane::desk
