// SystemLanguage is the language that the system's own programs speak.
#pragma once

#include <string>
#include <string_view>

#include "desk/machine/LocaleSettings.hpp"

namespace orvane::desk {

/// English or Chinese, whichever of the user's languages comes first; English when it is neither.
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
