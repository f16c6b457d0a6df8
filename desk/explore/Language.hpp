// The language that the application must show, and whether a text is in it.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "desk/machine/LocaleSettings.hpp"

namespace orvane::desk::explore {

enum class Language { english, chinese };

/// The language for the stored choice and the system's preferred languages.
[[nodiscard]] Language languageFor(std::string_view choice, const LocaleSettings& locale);

/// Whether the text has no characters that belong to the other language only. `names`, such as
/// those of displays, may be in any language.
[[nodiscard]] bool isWrittenIn(Language language, std::string text,
                               const std::set<std::string>& names);

/// The labels and values that the explorer looks for.
struct Labels {
  const char* pin;
  const char* unpin;
  const char* prevent;
  const char* allow;
  const char* notNow;
  const char* openWindow;
  const char* settings;
  const char* close;
  const char* done;
  const char* minimise;
  const char* quit;
  const char* openAtLogin;
  const char* openPrivacySettings;
  const char* openDockSettings;
  const char* privacyPolicy;
  const char* accessibilitySettings;
  const char* contactSupport;
  const char* loginItems;
  const char* language;
  const char* unlockShortcut;
  const char* followSystem;
  const char* english;
  const char* chinese;
  const char* locked;
  const char* unlocked;
  const char* pinned;
  const char* notPinned;
  const char* enabled;
  const char* off;
  const char* approve;
  const char* moveToApplications;
  const char* mainDisplay;
  const char* upperDisplay;
  const char* lowerDisplay;
  const char* leftDisplay;
  const char* rightDisplay;
  const char* externalDisplay;
};

[[nodiscard]] const Labels& labelsIn(Language language);

/// The item of a stored language in the settings' pop-up button.
[[nodiscard]] std::string languageItem(std::string_view choice, Language language);
/// The item of a stored unlock key in the settings' pop-up button.
[[nodiscard]] std::string shortcutItem(std::string_view modifier);

}  // namespace orvane::desk::explore
