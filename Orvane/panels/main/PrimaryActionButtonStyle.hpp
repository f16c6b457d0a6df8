// The style of a panel's primary button.
#pragma once

#include "Orvane/ui/views/Button.hpp"

namespace orvane {

struct PrimaryActionButtonStyle {
  /// In points.
  static constexpr double height = 38;
  static constexpr double cornerRadius = 8;

  ui::Color tint;

  [[nodiscard]] ui::View operator()(const ui::ButtonConfiguration& configuration,
                                    const ui::Environment& environment) const;
};

}  // namespace orvane
