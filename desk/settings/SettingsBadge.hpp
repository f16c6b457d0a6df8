// A coloured plate with a white symbol.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

struct SettingsBadge {
  std::string symbol;
  ui::Color color = ui::Color::gray();
  /// In points.
  double side = 20;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane::desk
