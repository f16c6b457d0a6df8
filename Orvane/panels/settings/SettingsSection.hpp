// One card of the settings panel.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct SettingsSection {
  /// The name of a system symbol.
  std::string systemImage;
  std::string title;
  /// Of the symbol, the border and the shadow.
  ui::Color tint;
  /// Of the card's surface.
  ui::Color backgroundTint;
  ui::View content;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
