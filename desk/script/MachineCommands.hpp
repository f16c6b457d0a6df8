// The commands that concern the machine as a whole: a new one, and the passing of time.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

void addMachineCommands(CommandTable& table);

}  // namespace orvane::desk::script
