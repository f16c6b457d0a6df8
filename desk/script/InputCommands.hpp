// The commands of the hand: the pointer over a control, clicks, the wheel, keys and drops.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

void addInputCommands(CommandTable& table);

}  // namespace orvane::desk::script
