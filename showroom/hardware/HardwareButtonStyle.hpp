// The small push button of the hardware panel.
#pragma once

#include "Orvane/ui/views/ButtonStyle.hpp"

namespace orvane::showroom {

struct HardwareButtonStyle {
  ui::View body(const ui::ButtonConfiguration& configuration,
                const ui::Environment& environment) const;
};

}  // namespace orvane::showroom
