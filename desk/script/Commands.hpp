// The commands of the script language, in groups.
#pragma once

#include "desk/script/CommandTable.hpp"

namespace orvane::desk::script {

/// Reset, time, displays.
void addMachineCommands(CommandTable& table);
/// Settings of the user and the system: Dock, permission, languages, defaults, login item, links,
/// appearance.
void addSystemCommands(CommandTable& table);
/// Starting, ending and operating the application.
void addApplicationCommands(CommandTable& table);
/// The pointer, held keys, events.
void addPointerCommands(CommandTable& table);
/// Windows, the menu and their controls.
void addSurfaceCommands(CommandTable& table);
/// Inspection: show, find, picture, echo, expect.
void addLookingCommands(CommandTable& table);

}  // namespace orvane::desk::script
