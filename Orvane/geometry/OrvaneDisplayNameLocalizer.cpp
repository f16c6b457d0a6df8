// The name under which a display is shown, in the language of the display names.
#include "Orvane/geometry/OrvaneDisplayNameLocalizer.hpp"

#include <algorithm>
#include <array>
#include <vector>

#include "Orvane/base/Text.hpp"
#include "Orvane/model/OrvaneLanguage.hpp"
#include "Orvane/platform/appkit/Locale.hpp"

namespace orvane::OrvaneDisplayNameLocalizer {

namespace {

DisplayNameLanguage displayNameLanguage() {
  switch (OrvaneLanguage::stored()) {
    case OrvaneLanguage::english:
      return DisplayNameLanguage::english;
    case OrvaneLanguage::chinese:
      return currentChineseLanguage();
    case OrvaneLanguage::system:
      break;
  }
  return currentChineseLanguageOrEnglish();
}

std::string chosen(std::string_view english, std::string_view simplified,
                   std::string_view traditional) {
  switch (displayNameLanguage()) {
    case DisplayNameLanguage::simplifiedChinese:
      return std::string(simplified);
    case DisplayNameLanguage::traditionalChinese:
      return std::string(traditional);
    case DisplayNameLanguage::english:
      break;
  }
  return std::string(english);
}

template <std::size_t count>
bool startsWithAny(std::string_view text, const std::array<std::string_view, count>& prefixes) {
  return std::ranges::any_of(prefixes,
                             [&](std::string_view prefix) { return text.starts_with(prefix); });
}

std::optional<DisplayNameLanguage> languageNamedBy(std::string_view identifier) {
  static constexpr std::array<std::string_view, 4> traditionalPrefixes = {"zh-hant-", "zh-tw",
                                                                          "zh-hk", "zh-mo"};
  const std::string normalized = normalizedLocaleIdentifier(identifier);
  if (normalized == "zh-hant" || startsWithAny(normalized, traditionalPrefixes)) {
    return DisplayNameLanguage::traditionalChinese;
  }
  if (normalized == "zh" || normalized.starts_with("zh-")) {
    return DisplayNameLanguage::simplifiedChinese;
  }
  if (normalized == "en" || normalized.starts_with("en-")) {
    return DisplayNameLanguage::english;
  }
  return std::nullopt;
}

}  // namespace

std::string localizedDisplayName(std::string_view name, std::optional<std::uint32_t> displayID,
                                 bool isBuiltIn) {
  if (isBuiltIn) {
    return chosen("Display", "内建显示器", "內建顯示器");
  }
  const std::string_view ownName = trimmed(name);
  return ownName.empty() ? fallbackDisplayName(displayID) : std::string(ownName);
}

std::string fallbackDisplayName(std::optional<std::uint32_t> displayID) {
  if (!displayID) {
    return chosen("Unknown Display", "未知显示器", "未知顯示器");
  }
  return chosen("Display ", "显示器 ", "顯示器 ") + std::to_string(*displayID);
}

DisplayNameLanguage currentChineseLanguage() {
  // The locale's identifier is not normalised, so both spellings are listed.
  static constexpr std::array<std::string_view, 5> traditionalPrefixes = {
      "zh_hant", "zh-hant", "zh_tw", "zh_hk", "zh_mo"};
  return startsWithAny(asciiLowercased(appkit::Locale::currentIdentifier()), traditionalPrefixes)
             ? DisplayNameLanguage::traditionalChinese
             : DisplayNameLanguage::simplifiedChinese;
}

DisplayNameLanguage currentChineseLanguageOrEnglish() {
  std::vector<std::string> identifiers = appkit::Locale::preferredLanguages();
  identifiers.push_back(appkit::Locale::currentIdentifier());
  for (const std::string& identifier : identifiers) {
    if (const auto language = languageNamedBy(identifier)) {
      return *language;
    }
  }
  return DisplayNameLanguage::english;
}

}  // namespace orvane::OrvaneDisplayNameLocalizer
