// The content of System Settings: the sidebar, the page, and the sheet over both.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"
#include "desk/settings/SystemLanguage.hpp"

namespace orvane::desk {

class SystemSettings;

struct SystemSettingsView {
  SystemSettings* settings;

  ui::View body(const ui::Environment& environment) const;

  /// The accessibility label of the list of applications.
  [[nodiscard]] static std::string listLabel(const SystemLanguage& language) {
    return language.text("Applications", "应用程序");
  }
};

}  // namespace orvane::desk
