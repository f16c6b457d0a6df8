// The tile with a symbol at the head of a panel.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct PanelIcon {
  /// The name of a system symbol.
  std::string systemImage;
  ui::Color tint;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
