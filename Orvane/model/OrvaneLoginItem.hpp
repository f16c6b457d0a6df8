// Launch at login: whether the application's location allows it, and the registration itself.
#pragma once

#include <optional>
#include <string>

namespace orvane::OrvaneLoginItem {

/// Whether the next login will find the application in its present location. False on a disk image,
/// and where macOS runs a downloaded application that the user has not moved (App Translocation).
bool isInPermanentLocation();

/// Registers or unregisters the application as a login item, unless it already is, or is not, one.
/// Returns the platform's error text when that fails, none otherwise.
std::optional<std::string> setEnabled(bool enabled);

}  // namespace orvane::OrvaneLoginItem
