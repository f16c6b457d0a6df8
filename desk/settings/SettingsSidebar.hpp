// The sidebar of the System Settings.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"
#include "desk/settings/SettingsPage.hpp"

namespace orvane::desk {

class SystemSettings;

struct SettingsSidebar {
  SystemSettings* settings;

  ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] ui::View row(SettingsPage page, const std::string& title, const std::string& symbol,
                             const ui::Color& color) const;
};

}  // namespace orvane::desk
