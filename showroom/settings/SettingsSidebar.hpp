// The sidebar of System Settings.
#pragma once

#include "Orvane/ui/views/View.hpp"
#include "desk/settings/SystemSettings.hpp"

namespace orvane::showroom {

[[nodiscard]] ui::View settingsSidebar(desk::SystemSettings& settings);

}  // namespace orvane::showroom
