// The language of an identifier such as "zh-Hans-CN" or "en_US" precedes the first separator.
#include "desk/settings/SystemLanguage.hpp"

namespace orvane::desk {

SystemLanguage SystemLanguage::of(const LocaleSettings& locale) {
  for (const std::string& identifier : locale.preferredLanguages) {
    const std::string language = identifier.substr(0, identifier.find_first_of("-_"));
    if (language == "zh" || language == "en") {
      return SystemLanguage(language == "zh");
    }
  }
  return SystemLanguage(false);
}

}  // namespace orvane::desk
