// What the keys of the desk's window do: one table, with the state that each key changes.
#pragma once

#include <string>
#include <vector>

#include "desk/window/DeskSession.hpp"

namespace orvane::desk {

struct WindowCommand {
  /// The letter on the key, as a capital.
  char key;
  const char* label;
  /// The present state in a word or two.
  std::string (*state)(const DeskSession& session);
  /// Whether the state is to be shown as switched on.
  bool (*isOn)(const DeskSession& session);
  void (*run)(DeskSession& session);
};

/// In the order in which they are shown.
const std::vector<WindowCommand>& windowCommands();

/// Runs the command of a letter, large or small. False when there is none.
bool runWindowCommand(DeskSession& session, char key);

}  // namespace orvane::desk
