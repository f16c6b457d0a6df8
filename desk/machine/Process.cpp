// The beginning and the end of the simulated process.
#include "desk/machine/Process.hpp"

#include "Orvane/base/ProcessShared.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/machine/MachineObserver.hpp"

namespace orvane::desk {

void Process::start() {
  if (state_ == State::running) {
    return;
  }
  state_ = State::running;
  machine_.application = {};
  machine_.runLoop.setAcceptsTasks(true);
  machine_.processStarted();
}

void Process::end() {
  if (state_ == State::ending) {
    return;
  }
  state_ = State::ending;
  machine_.runLoop.setAcceptsTasks(false);
  machine_.runLoop.sweep();
  ProcessLifetime::end();
  if (machine_.windowServer != nullptr) {
    machine_.windowServer->processEnded();
  }
  machine_.observers.removeAll();
  machine_.eventTaps.killAll();
  for (const void* const source : machine_.runLoop.sources()) {
    machine_.runLoop.removeSource(source, RunLoop::commonModes);
    machine_.objects.release(source, "the end of the process");
  }
  machine_.preferences.forgetCopies();
  state_ = State::notRunning;
}

}  // namespace orvane::desk
