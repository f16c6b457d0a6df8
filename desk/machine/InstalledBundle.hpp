// The location of the application's bundle.
#pragma once

#include <string>

namespace orvane::desk {

struct InstalledBundle {
  std::string url = "file:///Applications/Orvane.app/";
  bool isOnReadOnlyVolume = false;
};

}  // namespace orvane::desk
