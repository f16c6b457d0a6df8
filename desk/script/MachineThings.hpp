// What a script can look at of the machine itself.
#pragma once

#include "desk/script/ThingTable.hpp"

namespace orvane::desk::script {

void addMachineThings(ThingTable& table);

}  // namespace orvane::desk::script
