// What a script can look at of the application.
#pragma once

#include "desk/script/ThingTable.hpp"

namespace orvane::desk::script {

void addApplicationThings(ThingTable& table);

}  // namespace orvane::desk::script
