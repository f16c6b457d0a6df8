// The coloured plate with a white symbol before a row of the System Settings.
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
