// A session of two displays, seen as hardware.
#pragma once

#include <gtest/gtest.h>

#include "desk/hardware/HardwareContent.hpp"
#include "desk/window/DeskSession.hpp"

namespace orvane::desk {

class HardwareFixture : public testing::Test {
 protected:
  [[nodiscard]] HardwareContent content() const { return session.hardwareContent(false); }

  DeskSession session{2};
  Hardware& hardware = session.hardware();
  Machine& machine = session.machine();
};

}  // namespace orvane::desk
