// What a script can look at, in groups.
#pragma once

#include "Orvane/model/OrvaneStatus.hpp"
#include "desk/script/InspectableTable.hpp"

namespace orvane::desk::script {

/// The status as scripts write it, such as "locked".
[[nodiscard]] const char* nameOf(OrvaneStatus status);

/// The machine itself.
void addMachineInspectables(InspectableTable& table);
/// The application, as it is inside.
void addApplicationInspectables(InspectableTable& table);
/// What the window server shows.
void addWindowInspectables(InspectableTable& table);

}  // namespace orvane::desk::script
