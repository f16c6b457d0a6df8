// The commands that set what the user and the system have decided: Dock, permission, languages,
// defaults, login item, links, looks.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

void addSystemCommands(CommandTable& table);

}  // namespace orvane::desk::script
