// Launch at login: where it is possible, and no more asked of the system than what changes
// something.
#pragma once

#include <optional>
#include <string>

namespace orvane::OrvaneLoginItem {

/// Whether the next login finds the application where it lies now: not on a disk image, nor where
/// macOS runs a downloaded application that its user has not moved (App Translocation).
bool isInPlaceThatStays();

/// Registers or unregisters the application as a login item unless it already is, or is not, one.
/// The platform's own text of the error when that fails, none otherwise.
std::optional<std::string> setEnabled(bool enabled);

}  // namespace orvane::OrvaneLoginItem
