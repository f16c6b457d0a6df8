// What a script can look at of the window server.
#pragma once

#include "desk/script/ThingTable.hpp"

namespace orvane::desk::script {

void addWindowThings(ThingTable& table);

}  // namespace orvane::desk::script
