// The style of the icon button in the title bar.
#pragma once

#include "Orvane/ui/views/Button.hpp"

namespace orvane {

struct TitleBarIconButtonStyle {
  /// In points.
  static constexpr double cornerRadius = 10;

  [[nodiscard]] ui::View operator()(const ui::ButtonConfiguration& configuration,
                                    const ui::Environment& environment) const;
};

}  // namespace orvane
