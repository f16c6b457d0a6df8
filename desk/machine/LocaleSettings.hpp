// The user's languages and region.
#pragma once

#include <string>
#include <vector>

namespace orvane::desk {

struct LocaleSettings {
  std::vector<std::string> preferredLanguages{"en-US"};
  std::string currentIdentifier = "en_US";
};

}  // namespace orvane::desk
