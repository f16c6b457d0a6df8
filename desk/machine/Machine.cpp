// How the parts of the machine tell each other what changed.
#include "desk/machine/Machine.hpp"

#include <cstdio>
#include <cstdlib>

#include "desk/machine/MachineScope.hpp"

namespace orvane::desk {

namespace {

Machine* currentMachine = nullptr;

}  // namespace

Machine::Machine() {
  if (currentMachine != nullptr) {
    std::fputs("desk: a machine is switched on already\n", stderr);
    std::abort();
  }
  currentMachine = this;
  runLoop.setAcceptsTasks(false);
  permission.onLost([this] { eventTaps.killAll(); });
  displays.onChange([this] { displaysChanged(); });
  preferences.onChange([this] { dock.readPreferences(preferences, pointer.place()); });
}

Machine::~Machine() {
  companion.reset();
  currentMachine = nullptr;
}

Machine& Machine::current() {
  if (currentMachine == nullptr) {
    std::fputs("desk: no machine is switched on\n", stderr);
    std::abort();
  }
  return *currentMachine;
}

Machine* Machine::currentOrNull() {
  return currentMachine;
}

void Machine::displaysChanged() {
  pointer.displaysChanged();
  dock.displaysChanged(pointer.place());
  if (companion != nullptr) {
    companion->displaysChanged();
  }
  if (process.isRunning()) {
    observers.post(appkit::NotificationName::applicationDidChangeScreenParameters);
  }
}

}  // namespace orvane::desk
