// Links into System Settings, which differ between versions of macOS.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Orvane/platform/appkit/Workspace.hpp"

namespace orvane {

/// Opens System Settings by the first of `links` that the system accepts, or without a link when it
/// accepts none. Each link is tried after the one before has failed. Main thread only.
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
