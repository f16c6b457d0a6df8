// The commands of the script language, by name.
#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "desk/script/Command.hpp"
#include "desk/script/Lexer.hpp"

namespace orvane::desk::script {

class CommandTable {
 public:
  /// Replaces a command with the same name.
  void add(Command command);
  /// Adds a command with this name, parameters and action; see `makeCommand`.
  template <typename Parameters, typename Action>
  void add(std::string name, Parameters parameters, Action action) {
    add(makeCommand(std::move(name), std::move(parameters), std::move(action)));
  }
  /// Executes a line of a script and then all tasks that are due. An empty line does nothing.
  /// Returns why the line failed.
  [[nodiscard]] Problem run(std::string_view line, ScriptContext& context) const;

  /// All commands, ordered by name.
  [[nodiscard]] const std::map<std::string, Command, std::less<>>& all() const { return commands_; }

 private:
  /// Why no command begins with these words.
  [[nodiscard]] Problem problemWith(std::span<const Word> words) const;
  /// The second words of the family with the first word `word`, separated by commas; empty when
  /// there is no such family.
  [[nodiscard]] std::string familyOf(std::string_view word) const;

  std::map<std::string, Command, std::less<>> commands_;
};

/// Every command that the desk has.
[[nodiscard]] CommandTable standardCommands();

// The commands in groups.

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
