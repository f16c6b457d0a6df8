// The commands that look and compare: show, find, picture, echo, expect.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

void addLookingCommands(CommandTable& table);

}  // namespace orvane::desk::script
