// What a script can inspect, in groups.
#pragma once

#include "Orvane/model/OrvaneStatus.hpp"
#include "desk/script/InspectableTable.hpp"

namespace orvane::desk::script {

/// The status in the script language, such as "locked".
[[nodiscard]] const char* nameOf(OrvaneStatus status);

/// The status item's menu: whether it is open, and its rows, even while it is closed.
[[nodiscard]] Json statusMenuSnapshot();
[[nodiscard]] Json dockOf(const Machine& machine);
[[nodiscard]] Json pointerOf(const Machine& machine);

/// The machine itself.
void addMachineInspectables(InspectableTable& table);
/// The application's snapshot.
void addApplicationInspectables(InspectableTable& table);
/// Windows, menus and announcements.
void addWindowInspectables(InspectableTable& table);

}  // namespace orvane::desk::script
