// What a user may read: in which language the application has to speak, and whether a text does.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "desk/machine/LocaleSettings.hpp"

namespace orvane::desk::explore {

enum class Tongue { english, chinese };

/// The language for what is stored as the user's choice and what the system prefers.
[[nodiscard]] Tongue tongueFor(std::string_view choice, const LocaleSettings& locale);

/// Whether the text holds nothing that only the other language has. Names, such as those of
/// displays, and messages of the system may be in any language.
[[nodiscard]] bool isIn(Tongue tongue, std::string text, const std::set<std::string>& names);

/// The words that the explorer itself looks for.
struct Words {
  const char* pin;
  const char* unpin;
  const char* prevent;
  const char* allow;
  const char* notNow;
  const char* followSystem;
  const char* english;
  const char* chinese;
  const char* locked;
  const char* unlocked;
};

[[nodiscard]] const Words& wordsOf(Tongue tongue);

}  // namespace orvane::desk::explore
