// The content of System Settings: the sidebar, the page, and the sheet over both.
#pragma once

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

class SystemSettings;

struct SystemSettingsView {
  SystemSettings* settings;

  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane::desk
