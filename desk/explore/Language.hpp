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
  const char* followSystem;
  const char* english;
  const char* chinese;
  const char* locked;
  const char* unlocked;
  const char* approve;
  const char* moveToApplications;
};

[[nodiscard]] const Labels& labelsIn(Language language);

}  // namespace orvane::desk::explore
