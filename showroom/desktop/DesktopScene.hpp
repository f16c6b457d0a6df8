// DesktopScene is the input of the painter: the machine, the application's status icon and zones,
// and the marks to draw.
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
  /// The opacity of the mark: 1 at first, fading to 0.
  double strength = 1;
};

struct DesktopScene {
  explicit DesktopScene(const desk::Machine& shownMachine) : machine(shownMachine) {}
  /// With the application's status icon and its guard's zones, if it runs.
  DesktopScene(const desk::Machine& shownMachine, const desk::ApplicationHost& application);

  const desk::Machine& machine;
  /// The symbol of the status item; none while the application does not run.
  std::optional<std::string> statusSymbol;
  /// In global coordinates; drawn if `showsZones`.
  std::vector<TriggerZone> zones;
  bool showsZones = false;
  std::optional<MovedBack> movedBack;
  /// If set, only this window or menu is painted, and no pointer.
  std::optional<std::string> onlySurface;
  /// The pointer's size relative to that on a Mac.
  double pointerMagnification = 1;
};

}  // namespace orvane::showroom
