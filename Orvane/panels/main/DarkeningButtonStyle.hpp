// The look of a button whose label is a surface of its own: it darkens while it is pressed.
#pragma once

#include "Orvane/ui/draw/Shape.hpp"
#include "Orvane/ui/views/ButtonStyle.hpp"

namespace orvane {

struct DarkeningButtonStyle {
  /// Of the label's surface.
  ui::Shape shape;
  /// The opacity of the black over it, from 0 to 1.
  double shade;

  ui::View body(const ui::ButtonConfiguration& configuration,
                const ui::Environment& environment) const;
};

}  // namespace orvane
