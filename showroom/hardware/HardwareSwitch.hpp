// A row of the hardware panel with a switch.
#pragma once

#include <functional>
#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::showroom {

struct HardwareSwitch {
  std::string title;
  bool isOn = false;
  /// Receives the new state.
  std::function<void(bool)> onChange;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane::showroom
