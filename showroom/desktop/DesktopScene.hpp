// What is to be seen on the desktop at one moment: the machine, and what the machine alone does not
// know, namely what the application shows and what the spectator wants to have marked.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Orvane/geometry/TriggerZone.hpp"
#include "Orvane/platform/Quartz.hpp"
#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::showroom {

/// A pointer movement that the guard moved back, in global coordinates.
struct MovedBack {
  CGPoint from{};
  CGPoint to{};
  /// 1 when it has just happened, 0 when it is forgotten.
  double strength = 1;
};

struct DesktopScene {
  explicit DesktopScene(const desk::Machine& shownMachine) : machine(shownMachine) {}
  /// With the application's status icon, if it runs, and the zones of its guard.
  DesktopScene(const desk::Machine& shownMachine, const desk::ApplicationHost& application);

  const desk::Machine& machine;
  /// The name of the application's symbol in the menu bar; none while it does not run.
  std::optional<std::string> statusSymbol;
  /// The zones in force, in global coordinates; marked when `showsZones` is true.
  std::vector<TriggerZone> zones;
  bool showsZones = false;
  std::optional<MovedBack> movedBack;
  /// When set, of all windows and menus only this one is there, by its name.
  std::optional<std::string> onlySurface;
  /// How much larger than on a Mac the pointer is drawn.
  double pointerMagnification = 1;
};

}  // namespace orvane::showroom
