// The settings that persist across launches: one user-defaults key each.
#include "Orvane/model/OrvaneSettings.hpp"

#include <string_view>

#include "Orvane/platform/appkit/UserDefaults.hpp"

namespace orvane::OrvaneSettings {

namespace {

using appkit::UserDefaults;

constexpr std::string_view selectedDisplayKey = "selectedDisplayID";
constexpr std::string_view enabledKey = "isOrvaneEnabled";
constexpr std::string_view hidesDockKey = "hidesDockOnAllDisplays";
constexpr std::string_view modifierKey = "temporaryUnlockModifier";

}  // namespace

std::optional<std::string> selectedDisplayID() {
  std::optional<std::string> stored = UserDefaults::string(selectedDisplayKey);
  return stored && !stored->empty() ? stored : std::nullopt;
}

void setSelectedDisplayID(const std::optional<std::string>& id) {
  if (id) {
    UserDefaults::setString(selectedDisplayKey, *id);
  } else {
    UserDefaults::remove(selectedDisplayKey);
  }
}

bool isOrvaneEnabled() {
  return UserDefaults::boolean(enabledKey).value_or(false);
}

void setOrvaneEnabled(bool isEnabled) {
  UserDefaults::setBoolean(enabledKey, isEnabled);
}

bool hidesDockOnAllDisplays() {
  return UserDefaults::boolean(hidesDockKey).value_or(false);
}

void setHidesDockOnAllDisplays(bool hides) {
  UserDefaults::setBoolean(hidesDockKey, hides);
}

OrvaneModifier temporaryUnlockModifier() {
  return OrvaneModifier::fromRawValue(UserDefaults::string(modifierKey).value_or(""));
}

void setTemporaryUnlockModifier(OrvaneModifier modifier) {
  UserDefaults::setString(modifierKey, modifier.rawValue());
}

OrvaneLanguage appLanguage() {
  return OrvaneLanguage::stored();
}

void setAppLanguage(OrvaneLanguage language) {
  UserDefaults::setString(OrvaneLanguage::defaultsKey, language.rawValue());
}

}  // namespace orvane::OrvaneSettings
