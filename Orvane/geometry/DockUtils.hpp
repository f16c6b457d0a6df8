// Reads the Dock's screen edge from its preferences.
#pragma once

#include "Orvane/base/CFRef.hpp"
#include "Orvane/geometry/DockPosition.hpp"
#include "Orvane/platform/Quartz.hpp"

namespace orvane::DockUtils {

/// The Dock's preference domain, "com.apple.dock"; created once and never released.
CFStringRef dockPreferencesID();

/// The value of `key` that the Dock stored last: for any host, else for the current host, else the
/// first along the application's search list. Empty when there is none.
[[nodiscard]] CFRef<CFPropertyListRef> readDockPreference(CFStringRef key);

/// Reads the key "orientation". A missing value or one that is not a string means `bottom`, the
/// Dock's own default; a string that names no edge means `unknown`, which has no trigger zones.
[[nodiscard]] DockPosition getDockPosition();

}  // namespace orvane::DockUtils
