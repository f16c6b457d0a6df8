// The simulated Mac, composed of its parts. The platform functions act on the current machine.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "desk/machine/Appearance.hpp"
#include "desk/machine/ApplicationState.hpp"
#include "desk/machine/Clock.hpp"
#include "desk/machine/Counters.hpp"
#include "desk/machine/Displays.hpp"
#include "desk/machine/Dock.hpp"
#include "desk/machine/EventTaps.hpp"
#include "desk/machine/Faults.hpp"
#include "desk/machine/InstalledBundle.hpp"
#include "desk/machine/Links.hpp"
#include "desk/machine/LocaleSettings.hpp"
#include "desk/machine/LoginItemState.hpp"
#include "desk/machine/ModifierKeys.hpp"
#include "desk/machine/Mouse.hpp"
#include "desk/machine/NotificationDelivery.hpp"
#include "desk/machine/ObjectRegistry.hpp"
#include "desk/machine/Observers.hpp"
#include "desk/machine/Permission.hpp"
#include "desk/machine/PlatformCalls.hpp"
#include "desk/machine/Pointer.hpp"
#include "desk/machine/Preferences.hpp"
#include "desk/machine/Process.hpp"
#include "desk/machine/RunLoop.hpp"
#include "desk/machine/UserDefaultsStore.hpp"

namespace orvane::desk {

class MachineObserver;

/// Created by a MachineScope. It starts with no display, no process, no permission, an empty disk,
/// and the Dock shown at the bottom.
class Machine {
 public:
  Machine();
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;
  ~Machine();

  /// The machine that the platform functions act on. There must be one.
  static Machine& current();
  /// Null when there is none.
  static Machine* currentOrNull();

  /// To be called when a process has started. It reads its screens itself, so only later changes
  /// are posted.
  void processStarted() { noteVisibleFrames(); }

  /// Serves all that is due at the present instant.
  void runDue() { runLoop.runDue(); }
  /// Lets time pass.
  void advance(double seconds) { runLoop.advance(Clock::fromSeconds(seconds)); }

  Faults faults;
  Clock clock;
  Counters counters;
  PlatformCalls calls;
  ObjectRegistry objects{faults};
  RunLoop runLoop{clock, faults};
  Observers observers;
  NotificationDelivery notifications;
  Permission permission;
  LoginItemState loginItem;
  InstalledBundle bundle;
  Links links;
  Preferences preferences;
  UserDefaultsStore userDefaults;
  LocaleSettings locale;
  Appearance appearance;
  ApplicationState application;
  ModifierKeys modifierKeys;
  Displays displays;
  Pointer pointer{displays};
  EventTaps eventTaps{runLoop};
  Dock dock{displays, clock};
  Mouse mouse{displays, pointer, eventTaps, dock, modifierKeys, counters};
  Process process{*this};
  /// Made by WindowServer::current; null until first used. Last, because it uses all
  /// the others.
  std::unique_ptr<MachineObserver> windowServer;

 private:
  void displaysChanged();
  void permissionChanged();
  void dockChanged();
  [[nodiscard]] bool haveVisibleFramesChanged() const;
  void noteVisibleFrames();
  void announceVisibleFrames();
  void postScreenParameters();
  void post(appkit::NotificationName name);
  void postNow(appkit::NotificationName name, bool twice);

  /// Each display's visible frame as last posted to the process, in the order of the list.
  std::vector<CGRect> knownVisibleFrames_;
};

}  // namespace orvane::desk
