// The style of the close button of the settings panel.
#pragma once

#include "Orvane/ui/views/Button.hpp"

namespace orvane {

struct SettingsIconButtonStyle {
  [[nodiscard]] ui::View operator()(const ui::ButtonConfiguration& configuration,
                                    const ui::Environment& environment) const;
};

}  // namespace orvane
