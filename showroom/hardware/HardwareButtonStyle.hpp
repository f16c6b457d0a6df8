// The small push button of the hardware panel.
#pragma once

#include "Orvane/ui/views/Button.hpp"

namespace orvane::showroom {

struct HardwareButtonStyle {
  ui::View operator()(const ui::ButtonConfiguration& configuration,
                      const ui::Environment& environment) const;
};

}  // namespace orvane::showroom
