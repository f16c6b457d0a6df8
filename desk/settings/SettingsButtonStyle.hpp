// The style of buttons in System Settings, which are drawn by their label.
#pragma once

#include "Orvane/ui/views/Button.hpp"

namespace orvane::desk {

/// The label does not change while the button is pressed, nor while a sheet disables it, unless
/// `fadesWhenDisabled`.
struct SettingsButtonStyle {
  bool fadesWhenDisabled = false;

  ui::View operator()(const ui::ButtonConfiguration& configuration,
                      const ui::Environment& /*environment*/) const {
    constexpr double disabledOpacity = 0.35;
    const bool isFaded = fadesWhenDisabled && !configuration.isEnabled;
    return configuration.label.opacity(isFaded ? disabledOpacity : 1);
  }
};

}  // namespace orvane::desk
