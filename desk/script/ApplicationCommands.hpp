// The commands that start, end and operate the application.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

void addApplicationCommands(CommandTable& table);

}  // namespace orvane::desk::script
