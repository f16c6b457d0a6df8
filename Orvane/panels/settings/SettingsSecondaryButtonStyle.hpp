// The look of the buttons within the cards of the settings panel.
#pragma once

#include "Orvane/ui/views/ButtonStyle.hpp"

namespace orvane {

struct SettingsSecondaryButtonStyle {
  static constexpr double cornerRadius = 8;

  ui::View body(const ui::ButtonConfiguration& configuration,
                const ui::Environment& environment) const;
};

}  // namespace orvane
