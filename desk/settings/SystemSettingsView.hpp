// The content of the simulated System Settings: the sidebar, the page, and the sheet above it.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"
#include "desk/settings/SystemLanguage.hpp"

namespace orvane::desk {

class SystemSettings;

struct SystemSettingsView {
  SystemSettings* settings;

  ui::View body(const ui::Environment& environment) const;

  /// How screen readers call the list of applications.
  [[nodiscard]] static std::string listLabel(const SystemLanguage& language) {
    return language.text("Applications", "应用程序");
  }

 private:
  [[nodiscard]] ui::View page() const;
};

}  // namespace orvane::desk
