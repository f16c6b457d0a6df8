// What a script can look at, in groups.
#pragma once

#include "desk/script/ThingTable.hpp"

namespace orvane::desk::script {

/// The machine itself.
void addMachineThings(ThingTable& table);
/// The application, as it is inside.
void addApplicationThings(ThingTable& table);
/// What the window server shows.
void addWindowThings(ThingTable& table);

}  // namespace orvane::desk::script
