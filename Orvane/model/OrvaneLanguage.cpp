// The interface language, which selects between the English and the Chinese text of a message.
#include "Orvane/model/OrvaneLanguage.hpp"

#include <optional>
#include <vector>

#include "Orvane/base/Text.hpp"
#include "Orvane/platform/appkit/Locale.hpp"
#include "Orvane/platform/appkit/UserDefaults.hpp"

namespace orvane {

namespace {

bool names(std::string_view identifier, std::string_view language) {
  return identifier.starts_with(language) &&
         (identifier.size() == language.size() || identifier[language.size()] == '-');
}

std::optional<OrvaneLanguage> languageNamedBy(std::string_view identifier) {
  const std::string normalized = normalizedLocaleIdentifier(identifier);
  if (names(normalized, "zh")) {
    return OrvaneLanguage::chinese;
  }
  if (names(normalized, "en")) {
    return OrvaneLanguage::english;
  }
  return std::nullopt;
}

}  // namespace

std::string_view OrvaneLanguage::rawValue() const {
  switch (value_) {
    case english:
      return "english";
    case chinese:
      return "chinese";
    case system:
      break;
  }
  return "system";
}

OrvaneLanguage OrvaneLanguage::fromRawValue(std::string_view rawValue) {
  for (const OrvaneLanguage language : allCases) {
    if (language.rawValue() == rawValue) {
      return language;
    }
  }
  return system;
}

OrvaneLanguage OrvaneLanguage::stored() {
  const std::optional<std::string> rawValue = appkit::UserDefaults::string(defaultsKey);
  return fromRawValue(rawValue.value_or(""));
}

OrvaneLanguage OrvaneLanguage::systemPreferred(std::span<const std::string> preferredIdentifiers,
                                               std::string_view fallbackIdentifier) {
  for (const std::string& identifier : preferredIdentifiers) {
    if (const auto language = languageNamedBy(identifier)) {
      return *language;
    }
  }
  return languageNamedBy(fallbackIdentifier).value_or(english);
}

std::string OrvaneLanguage::localized(std::string_view englishText,
                                      std::string_view chineseText) const {
  Value resolved = value_;
  if (resolved == system) {
    resolved =
        systemPreferred(appkit::Locale::preferredLanguages(), appkit::Locale::currentIdentifier());
  }
  return std::string(resolved == chinese ? chineseText : englishText);
}

}  // namespace orvane
