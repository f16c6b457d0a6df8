// The small switch at the end of a row of the System Settings.
#pragma once

#include <functional>
#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

struct SettingsSwitch {
  /// For screen readers; it is not shown.
  std::string label;
  bool isOn = false;
  std::function<void()> onToggle;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane::desk
