// The surface of a panel within the main window.
#pragma once

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct DockPanel {
  /// Between the surface's edge and its content, in points.
  static constexpr double padding = 20;
  static constexpr double cornerRadius = 12;

  ui::View content;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
