// The style of a panel's secondary buttons.
#pragma once

#include "Orvane/ui/views/Button.hpp"

namespace orvane {

struct SecondaryActionButtonStyle {
  /// In points.
  static constexpr double height = 34;
  static constexpr double cornerRadius = 8;

  [[nodiscard]] ui::View operator()(const ui::ButtonConfiguration& configuration,
                                    const ui::Environment& environment) const;
};

}  // namespace orvane
