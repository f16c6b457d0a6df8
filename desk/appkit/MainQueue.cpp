// The main queue on the desk, which the machine's run loop serves.
#include "Orvane/platform/appkit/MainQueue.hpp"

#include <utility>

#include "desk/machine/Machine.hpp"

namespace orvane::appkit {

void MainQueue::async(std::function<void()> task) {
  desk::Machine::current().runLoop.async(std::move(task));
}

void MainQueue::asyncAfter(double seconds, std::function<void()> task) {
  desk::Machine::current().runLoop.asyncAfter(desk::Clock::fromSeconds(seconds), std::move(task));
}

}  // namespace orvane::appkit
