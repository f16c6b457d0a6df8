// How the machine's parts notify each other of changes.
#include "desk/machine/Machine.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "desk/machine/MachineObserver.hpp"
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
  permission.onChange([this] { permissionChanged(); });
  displays.onChange([this] { displaysChanged(); });
  dock.onChange([this] { dockChanged(); });
  preferences.onChange([this] { dock.readPreferences(preferences, pointer.location()); });
}

Machine::~Machine() {
  windowServer.reset();
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

void Machine::permissionChanged() {
  if (!permission.isTrusted()) {
    eventTaps.killAll();
  }
  if (process.isRunning()) {
    post(appkit::NotificationName::accessibilityPermissionsDidChange);
  }
}

void Machine::displaysChanged() {
  pointer.displaysChanged();
  dock.displaysChanged(pointer.location());
  if (windowServer != nullptr) {
    windowServer->displaysChanged();
  }
  postScreenParameters();
}

void Machine::dockChanged() {
  if (process.isRunning()) {
    // Not now, in the middle of a movement: notify observers once the event is delivered, in every
    // mode of the run loop, as for a display change.
    runLoop.afterCurrent([this] { announceVisibleFrames(); });
  }
}

void Machine::announceVisibleFrames() {
  if (displays.isChanging()) {
    displays.noteFrameChange();
  } else if (haveVisibleFramesChanged()) {
    postScreenParameters();
  }
}

void Machine::postScreenParameters() {
  if (process.isRunning()) {
    noteVisibleFrames();
    post(appkit::NotificationName::applicationDidChangeScreenParameters);
  }
}

void Machine::post(appkit::NotificationName name) {
  if (notifications.delayNanoseconds == 0) {
    postNow(name, notifications.isDoubled);
    return;
  }
  // A timer and no task: as without the delay, no modal session keeps it back.
  const auto timer = std::make_shared<std::weak_ptr<RunLoopTimer>>();
  *timer = runLoop.addTimer(notifications.delayNanoseconds, RunLoop::commonModes,
                            [this, timer, name, twice = notifications.isDoubled] {
                              runLoop.invalidateTimer(timer->lock());
                              postNow(name, twice);
                            });
}

void Machine::postNow(appkit::NotificationName name, bool twice) {
  observers.post(name);
  if (twice) {
    observers.post(name);
  }
}

bool Machine::haveVisibleFramesChanged() const {
  return !std::ranges::equal(displays.all(), knownVisibleFrames_,
                             [this](const Display& display, const CGRect& known) {
                               return CGRectEqualToRect(dock.visibleFrameOf(display), known);
                             });
}

void Machine::noteVisibleFrames() {
  knownVisibleFrames_.clear();
  for (const Display& display : displays.all()) {
    knownVisibleFrames_.push_back(dock.visibleFrameOf(display));
  }
}

}  // namespace orvane::desk
