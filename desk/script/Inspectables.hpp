// What a script can look at, in groups.
#pragma once

#include "desk/script/InspectableTable.hpp"

namespace orvane::desk::script {

/// The machine itself.
void addMachineInspectables(InspectableTable& table);
/// The application, as it is inside.
void addApplicationInspectables(InspectableTable& table);
/// What the window server shows.
void addWindowInspectables(InspectableTable& table);

}  // namespace orvane::desk::script
