// A row of the hardware panel that switches something on and off.
#pragma once

#include <functional>
#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::showroom {

struct HardwareSwitch {
  std::string title;
  bool isOn = false;
  /// Called with what it is to become.
  std::function<void(bool)> onChange;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane::showroom
