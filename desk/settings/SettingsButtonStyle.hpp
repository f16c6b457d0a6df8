// A button of the System Settings that is drawn by its label alone.
#pragma once

#include "Orvane/ui/views/ButtonStyle.hpp"

namespace orvane::desk {

/// The label stays as it is while the button is pressed, as in the system's lists, and while a
/// sheet keeps it back; only a button that has nothing to do fades.
struct SettingsButtonStyle {
  bool fadesWhenDisabled = false;

  ui::View body(const ui::ButtonConfiguration& configuration,
                const ui::Environment& /*environment*/) const {
    constexpr double disabledOpacity = 0.35;
    const bool isFaded = fadesWhenDisabled && !configuration.isEnabled;
    return configuration.label.opacity(isFaded ? disabledOpacity : 1);
  }
};

}  // namespace orvane::desk
