// The page with the applications that may control the computer.
#pragma once

#include "Orvane/ui/views/View.hpp"
#include "desk/settings/AccessibilityList.hpp"

namespace orvane::desk {

class SystemSettings;

struct AccessibilityPage {
  SystemSettings* settings;

  ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] ui::View row(const AccessibilityList::Entry& entry) const;
  [[nodiscard]] ui::View buttons(const ui::Environment& environment) const;
};

}  // namespace orvane::desk
