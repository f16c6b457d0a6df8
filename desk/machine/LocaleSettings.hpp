// The user's languages and region.
#pragma once

#include <string>
#include <vector>

namespace orvane::desk {

struct LocaleSettings {
  std::vector<std::string> preferredLanguages{"en-US"};
  std::string currentIdentifier = "en_US";

  bool operator==(const LocaleSettings&) const = default;
};

}  // namespace orvane::desk
