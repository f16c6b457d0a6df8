// The commands that operate windows and what is in them.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

void addWindowCommands(CommandTable& table);

}  // namespace orvane::desk::script
