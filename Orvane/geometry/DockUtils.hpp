// Reads the Dock's own preferences: on which screen edge it lives.
#pragma once

#include "Orvane/base/CFRef.hpp"
#include "Orvane/geometry/DockPosition.hpp"
#include "Orvane/platform/Quartz.hpp"

namespace orvane::DockUtils {

/// The Dock's preference domain, "com.apple.dock"; made once and kept for the life of the process.
CFStringRef dockPreferencesID();

/// The value of `key` in the Dock's domain as the Dock stored it last, looked for with any host,
/// then with the current host, then along the application's search list; empty when there is none.
[[nodiscard]] CFRef<CFPropertyListRef> readDockPreference(CFStringRef key);

/// From the key "orientation": a missing value or one that is no string means `bottom`, the Dock's
/// own default; a text that names no edge means `unknown`, which guards nothing.
[[nodiscard]] DockPosition getDockPosition();

}  // namespace orvane::DockUtils
