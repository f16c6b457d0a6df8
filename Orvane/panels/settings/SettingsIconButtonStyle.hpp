// The style of the close button of the settings panel.
#pragma once

#include "Orvane/ui/views/ButtonStyle.hpp"

namespace orvane {

struct SettingsIconButtonStyle {
  [[nodiscard]] ui::View body(const ui::ButtonConfiguration& configuration,
                              const ui::Environment& environment) const;
};

}  // namespace orvane
