// The system's settings, which have had other links from one macOS to the next.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Orvane/platform/appkit/Workspace.hpp"

namespace orvane {

/// Opens the system's settings by the first of the links that the system accepts, or without a
/// link. Each is tried once the one before has failed. Main thread only.
inline void openSystemSettingsByFirstOf(std::vector<std::string> links) {
  if (links.empty()) {
    appkit::Workspace::openFile("/System/Applications/System Settings.app");
    return;
  }
  const std::string first = links.front();
  links.erase(links.begin());
  appkit::Workspace::openURL(first, [others = std::move(links)](bool isOpened) {
    if (!isOpened) {
      openSystemSettingsByFirstOf(others);
    }
  });
}

}  // namespace orvane
