// The plain pages of the System Settings, and what every page has in common.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"
#include "desk/settings/SettingsPage.hpp"

namespace orvane::desk {

class SystemSettings;

/// The settings are kept by the actions of the controls.
[[nodiscard]] ui::View generalPage(SystemSettings& settings);
[[nodiscard]] ui::View displaysPage(SystemSettings& settings);
[[nodiscard]] ui::View desktopAndDockPage(SystemSettings& settings);
[[nodiscard]] ui::View privacyPage(SystemSettings& settings);

/// A page with its title beside the window's buttons.
[[nodiscard]] ui::View titledPage(const std::string& title, const ui::View& content);
/// The same with a button before the title that leads to the page above it.
[[nodiscard]] ui::View titledPageBelow(SystemSettings& settings, SettingsPage above,
                                       const std::string& title, const ui::View& content);

}  // namespace orvane::desk
