// The desk in a window, for someone to play with.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>

namespace orvane::showroom {

struct WindowOptions {
  /// How many displays stand on the desk at first: 1 to 4.
  std::size_t displayCount = 2;
  /// The window's size in the computer's own points.
  int width = 1480;
  int height = 800;
  /// Where to write what the session came to, as JSON, when the window is closed.
  std::optional<std::filesystem::path> dumpFile;
};

/// Shows the window until it is closed. Returns the exit status of the program: 0, or 1 after a
/// message on the error stream when no window can be opened or the dump cannot be written.
int runWindow(const WindowOptions& options = {});

}  // namespace orvane::showroom
