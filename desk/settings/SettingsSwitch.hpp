// The small switch at the end of a row of System Settings.
#pragma once

#include <functional>
#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

struct SettingsSwitch {
  /// The accessibility label; it is not drawn.
  std::string label;
  bool isOn = false;
  std::function<void()> onToggle;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane::desk
