// The main thread's serial queue on the main dispatch queue.
#include "Orvane/platform/appkit/MainQueue.hpp"

#include <dispatch/dispatch.h>

namespace orvane::appkit {

void MainQueue::async(std::function<void()> task) {
  dispatch_async(dispatch_get_main_queue(), ^{
    task();
  });
}

void MainQueue::asyncAfter(double seconds, std::function<void()> task) {
  const auto nanoseconds = static_cast<int64_t>(seconds * static_cast<double>(NSEC_PER_SEC));
  dispatch_after(dispatch_time(DISPATCH_TIME_NOW, nanoseconds), dispatch_get_main_queue(), ^{
    task();
  });
}

}  // namespace orvane::appkit
