// The commands that make the system moody: sources refused, notifications late or doubled.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

void addFaultCommands(CommandTable& table);

}  // namespace orvane::desk::script
