// The interface language and the choice between the two texts that every message has.
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

  /// Under this key of the user defaults the raw value is stored.
  static constexpr std::string_view defaultsKey = "appLanguage";

  /// "system", "english" or "chinese".
  [[nodiscard]] std::string_view rawValue() const;
  /// Any other text gives `system`.
  [[nodiscard]] static OrvaneLanguage fromRawValue(std::string_view rawValue);
  /// The stored setting; `system` when it is absent or malformed.
  [[nodiscard]] static OrvaneLanguage stored();

  /// The language that the system's settings ask for: `chinese` or `english`, never `system`. The
  /// first identifier that names either decides, the fallback last; English when none does.
  [[nodiscard]] static OrvaneLanguage systemPreferred(
      std::span<const std::string> preferredIdentifiers, std::string_view fallbackIdentifier);

  /// The text of this language; for `system`, of the one that the system asks for at this moment.
  [[nodiscard]] std::string localized(std::string_view englishText,
                                      std::string_view chineseText) const;

 private:
  Value value_;
};

/// The text of the stored language: for what speaks without the model.
[[nodiscard]] inline std::string localized(std::string_view english, std::string_view chinese) {
  return OrvaneLanguage::stored().localized(english, chinese);
}

}  // namespace orvane
