// A card of the settings panel.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct SettingsSection {
  /// The name of a system symbol.
  std::string systemImage;
  std::string title;
  /// The colour of the symbol, the border and the shadow.
  ui::Color tint;
  /// The tint of the card's surface.
  ui::Color backgroundTint;
  ui::View content;

  [[nodiscard]] ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
