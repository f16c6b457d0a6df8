// The pages of System Settings other than Accessibility.
#pragma once

#include "desk/settings/SystemSettings.hpp"

namespace orvane::showroom {

constexpr const char* generalPage = "general";
constexpr const char* displaysPage = "displays";
constexpr const char* desktopAndDockPage = "desktopAndDock";

/// Adds them, with a sidebar that leads to them, and goes to the first of them.
void addSettingsPages(desk::SystemSettings& settings);

}  // namespace orvane::showroom
