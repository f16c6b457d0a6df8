// The serial queue of the main thread; the main dispatch queue on a Mac.
#pragma once

#include <functional>

namespace orvane::appkit {

/// Tasks run one after another in FIFO order, never nested.
class MainQueue {
 public:
  MainQueue() = delete;

  /// Runs `task` soon, after the caller has returned.
  static void async(std::function<void()> task);
  /// Runs `task` after at least `seconds`.
  static void asyncAfter(double seconds, std::function<void()> task);
};

}  // namespace orvane::appkit
