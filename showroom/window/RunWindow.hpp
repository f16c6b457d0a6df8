// The desk in an interactive window.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>

namespace orvane::showroom {

struct WindowOptions {
  /// The number of displays at first, 1 to 4.
  std::size_t displayCount = 2;
  /// The window's size in the computer's points.
  int width = 1480;
  int height = 800;
  /// The file for the final state as JSON, written when the window is closed.
  std::optional<std::filesystem::path> dumpFile;
};

/// Shows the window until it is closed. Returns the exit status: 0, or 1 with a message on the
/// error stream if no window can be opened or the dump cannot be written.
int runWindow(const WindowOptions& options = {});

}  // namespace orvane::showroom
