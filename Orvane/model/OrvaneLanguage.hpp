// The interface language, which selects between the English and the Chinese text of a message.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace orvane {

class OrvaneLanguage {
 public:
  enum Value { system, english, chinese };

  static constexpr std::array<Value, 3> allCases = {system, english, chinese};

  constexpr OrvaneLanguage(Value value) : value_(value) {}  // NOLINT(google-explicit-constructor)
  constexpr operator Value() const { return value_; }       // NOLINT(google-explicit-constructor)

  /// The user-defaults key under which the raw value is stored.
  static constexpr std::string_view defaultsKey = "appLanguage";

  /// "system", "english" or "chinese".
  [[nodiscard]] std::string_view rawValue() const;
  /// Any other text gives `system`.
  [[nodiscard]] static OrvaneLanguage fromRawValue(std::string_view rawValue);
  /// The stored setting; `system` when it is absent or malformed.
  [[nodiscard]] static OrvaneLanguage stored();

  /// The language that the system's settings select: `chinese` or `english`, never `system`. The
  /// first identifier that names either decides, with the fallback last; English when none does.
  [[nodiscard]] static OrvaneLanguage systemPreferred(
      std::span<const std::string> preferredIdentifiers, std::string_view fallbackIdentifier);

  /// The text in this language; `system` stands for the language that the system selects at the
  /// time of the call.
  [[nodiscard]] std::string localized(std::string_view englishText,
                                      std::string_view chineseText) const;

 private:
  Value value_;
};

/// The text in the stored language, for code that has no model.
[[nodiscard]] inline std::string localized(std::string_view english, std::string_view chinese) {
  return OrvaneLanguage::stored().localized(english, chinese);
}

}  // namespace orvane
