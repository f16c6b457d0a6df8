// SystemLanguage is the language of the system's programs.
#pragma once

#include <string>
#include <string_view>

#include "desk/machine/LocaleSettings.hpp"

namespace orvane::desk {

/// The first of the user's preferred languages that is English or Chinese; otherwise English.
class SystemLanguage {
 public:
  static SystemLanguage of(const LocaleSettings& locale) {
    for (const std::string& identifier : locale.preferredLanguages) {
      // The language of "zh-Hans-CN" or "en_US" precedes the first separator.
      const std::string language = identifier.substr(0, identifier.find_first_of("-_"));
      if (language == "zh" || language == "en") {
        return SystemLanguage(language == "zh");
      }
    }
    return SystemLanguage(false);
  }

  [[nodiscard]] bool isChinese() const { return isChinese_; }
  [[nodiscard]] std::string text(std::string_view english, std::string_view chinese) const {
    return std::string(isChinese_ ? chinese : english);
  }

  friend bool operator==(const SystemLanguage&, const SystemLanguage&) = default;

 private:
  explicit SystemLanguage(bool isChinese) : isChinese_(isChinese) {}

  bool isChinese_;
};

}  // namespace orvane::desk
