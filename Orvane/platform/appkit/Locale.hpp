// The user's languages and region, read at each call; NSLocale on a Mac.
#pragma once

#include <string>
#include <vector>

namespace orvane::appkit {

class Locale {
 public:
  Locale() = delete;

  /// Language identifiers such as "zh-Hans-CN", the most preferred first.
  static std::vector<std::string> preferredLanguages();
  /// The identifier of the current locale, such as "en_US".
  static std::string currentIdentifier();
};

}  // namespace orvane::appkit
