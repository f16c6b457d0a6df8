// HardwareFixture is a session of two displays with the content of its hardware panel.
#pragma once

#include "showroom/hardware/HardwareContent.hpp"
#include "tests/window/SessionFixture.hpp"

namespace orvane::showroom {

class HardwareFixture : public SessionFixture {
 protected:
  [[nodiscard]] HardwareContent content() const { return session.hardwareContent(false); }

  Hardware& hardware = session.hardware();
  desk::Machine& machine = session.machine();
};

}  // namespace orvane::showroom
