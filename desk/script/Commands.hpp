// The commands of the script language, in groups.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

/// A new machine, the passing of time, displays.
void addMachineCommands(CommandTable& table);
/// What the user and the system have decided: Dock, permission, languages, defaults, login item,
/// links, looks.
void addSystemCommands(CommandTable& table);
/// Start, end and operate the application.
void addApplicationCommands(CommandTable& table);
/// Move the pointer, hold keys, send events.
void addPointerCommands(CommandTable& table);
/// Operate windows, the menu and what is in them.
void addSurfaceCommands(CommandTable& table);
/// Look and compare: show, find, picture, echo, expect.
void addLookingCommands(CommandTable& table);

}  // namespace orvane::desk::script
