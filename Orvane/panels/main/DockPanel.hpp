// The surface of a panel in the main window.
#pragma once

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct DockPanel {
  /// In points; the padding is between the surface's edges and the content.
  static constexpr double padding = 20;
  static constexpr double cornerRadius = 12;

  ui::View content;

  [[nodiscard]] ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
