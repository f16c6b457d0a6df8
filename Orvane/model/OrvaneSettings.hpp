// The settings that persist across launches: one user-defaults key each, written as soon as the
// setting changes. An absent or malformed value reads as its default.
#pragma once

#include <optional>
#include <string>

#include "Orvane/guard/OrvaneModifier.hpp"
#include "Orvane/model/OrvaneLanguage.hpp"

namespace orvane::OrvaneSettings {

/// The display to which the Dock is pinned; none when the stored value is absent or empty.
[[nodiscard]] std::optional<std::string> selectedDisplayID();
/// None removes the stored value.
void setSelectedDisplayID(const std::optional<std::string>& id);

/// Whether the user wants the guard on across launches; false by default.
[[nodiscard]] bool isOrvaneEnabled();
void setOrvaneEnabled(bool isEnabled);

/// Whether the guard blocks the Dock on every display; false by default.
[[nodiscard]] bool hidesDockOnAllDisplays();
void setHidesDockOnAllDisplays(bool hides);

/// The key that unlocks while it is held; Option by default.
[[nodiscard]] OrvaneModifier temporaryUnlockModifier();
void setTemporaryUnlockModifier(OrvaneModifier modifier);

/// The language of the interface; the system's by default.
[[nodiscard]] OrvaneLanguage appLanguage();
void setAppLanguage(OrvaneLanguage language);

}  // namespace orvane::OrvaneSettings
