// The style of the buttons in the cards of the settings panel.
#pragma once

#include "Orvane/ui/views/Button.hpp"

namespace orvane {

struct SettingsSecondaryButtonStyle {
  /// In points.
  static constexpr double cornerRadius = 8;

  [[nodiscard]] ui::View operator()(const ui::ButtonConfiguration& configuration,
                                    const ui::Environment& environment) const;
};

}  // namespace orvane
