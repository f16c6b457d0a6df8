// The user's languages and region with NSLocale.
#include "Orvane/platform/appkit/Locale.hpp"

#import <Foundation/Foundation.h>

#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {

std::vector<std::string> Locale::preferredLanguages() {
  std::vector<std::string> languages;
  for (NSString* language in NSLocale.preferredLanguages) {
    languages.push_back(utf8String(language));
  }
  return languages;
}

std::string Locale::currentIdentifier() {
  return utf8String(NSLocale.autoupdatingCurrentLocale.localeIdentifier);
}

}  // namespace orvane::appkit
