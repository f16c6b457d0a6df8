// SystemLanguage is the language of the system's programs.
#pragma once

#include <string>
#include <string_view>

#include "desk/machine/LocaleSettings.hpp"

namespace orvane::desk {

/// The first of the user's preferred languages that is English or Chinese; otherwise English.
class SystemLanguage {
 public:
  static SystemLanguage of(const LocaleSettings& locale);

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
