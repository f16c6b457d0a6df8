// The commands that move the pointer, hold keys and send events.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

void addPointerCommands(CommandTable& table);

}  // namespace orvane::desk::script
