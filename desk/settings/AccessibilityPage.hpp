// The page with the applications that may control the computer.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"
#include "desk/settings/SystemLanguage.hpp"

namespace orvane::desk {

class SystemSettings;

[[nodiscard]] ui::View makeAccessibilityPage(SystemSettings& settings);

/// The accessibility label of the list of applications.
[[nodiscard]] std::string accessibilityListLabel(const SystemLanguage& language);

}  // namespace orvane::desk
