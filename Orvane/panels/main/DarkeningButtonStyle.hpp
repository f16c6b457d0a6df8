// The style of a button whose label is its own surface: it darkens while pressed.
#pragma once

#include "Orvane/ui/draw/Shape.hpp"
#include "Orvane/ui/views/Button.hpp"

namespace orvane {

struct DarkeningButtonStyle {
  /// The shape of the label's surface.
  ui::Shape shape;
  /// The opacity of the black laid over it, from 0 to 1.
  double shade;

  [[nodiscard]] ui::View operator()(const ui::ButtonConfiguration& configuration,
                                    const ui::Environment& environment) const;
};

}  // namespace orvane
