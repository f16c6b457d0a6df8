// The commands that open and close the status item's menu.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

void addMenuCommands(CommandTable& table);

}  // namespace orvane::desk::script
