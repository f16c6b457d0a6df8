// Launch at login: asks the system for no more than a change of what already holds.
#pragma once

#include <optional>
#include <string>

namespace orvane::OrvaneLoginItem {

/// Registers or unregisters the application as a login item unless it already is, or is not, one.
/// The platform's own text of the error when that fails, none otherwise.
std::optional<std::string> setEnabled(bool enabled);

}  // namespace orvane::OrvaneLoginItem
