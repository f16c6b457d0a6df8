// The look of the icon button in the window's own title bar.
#pragma once

#include "Orvane/ui/views/ButtonStyle.hpp"

namespace orvane {

struct TitleBarIconButtonStyle {
  ui::View body(const ui::ButtonConfiguration& configuration,
                const ui::Environment& environment) const;
};

}  // namespace orvane
