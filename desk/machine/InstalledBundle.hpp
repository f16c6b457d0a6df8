// Where the application's bundle lies.
#pragma once

#include <string>

namespace orvane::desk {

struct InstalledBundle {
  std::string url = "file:///Applications/Orvane.app/";
  bool isOnReadOnlyVolume = false;
};

}  // namespace orvane::desk
