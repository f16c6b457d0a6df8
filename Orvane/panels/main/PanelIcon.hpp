// The tile with a symbol in the header of a panel.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct PanelIcon {
  /// The name of a system symbol.
  std::string systemImage;
  ui::Color tint;

  [[nodiscard]] ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
