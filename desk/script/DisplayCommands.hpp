// The commands that attach, detach and rearrange displays.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

void addDisplayCommands(CommandTable& table);

}  // namespace orvane::desk::script
