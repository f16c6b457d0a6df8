// The name under which a display is shown, in the language of the display names.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Display names support traditional Chinese besides the two languages of the rest of the
/// interface.
namespace orvane::OrvaneDisplayNameLocalizer {

enum class DisplayNameLanguage { simplifiedChinese, traditionalChinese, english };

/// A fixed name for a built-in display; otherwise the trimmed `name`, or the fallback name when
/// that is empty.
[[nodiscard]] std::string localizedDisplayName(std::string_view name,
                                               std::optional<std::uint32_t> displayID,
                                               bool isBuiltIn);

/// A name made from the display's number.
[[nodiscard]] std::string fallbackDisplayName(std::optional<std::uint32_t> displayID);

/// The Chinese script of the current locale; simplified unless the locale names the traditional
/// one.
[[nodiscard]] DisplayNameLanguage currentChineseLanguage();

/// The first language that the user's preferred languages, then the current locale name; English
/// when they name none.
[[nodiscard]] DisplayNameLanguage currentChineseLanguageOrEnglish();

}  // namespace orvane::OrvaneDisplayNameLocalizer
