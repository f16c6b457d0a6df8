// The style of the buttons in the cards of the settings panel.
#pragma once

#include "Orvane/ui/views/ButtonStyle.hpp"

namespace orvane {

struct SettingsSecondaryButtonStyle {
  /// In points.
  static constexpr double cornerRadius = 8;

  [[nodiscard]] ui::View body(const ui::ButtonConfiguration& configuration,
                              const ui::Environment& environment) const;
};

}  // namespace orvane
