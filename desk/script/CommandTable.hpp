// The commands of the script language, by their names. Whoever has commands to add adds them.
#pragma once

#include <cstddef>
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
  struct Found {
    /// Null when there is no such command.
    const Command* command = nullptr;
    /// How many words its name has.
    std::size_t nameWords = 0;
    /// What is wrong when there is no such command.
    Problem problem;
  };

  /// A command of the same name is replaced.
  void add(Command command);
  /// Its name, what it takes and what it does; see `makeCommand`.
  template <typename Parameters, typename Action>
  void add(std::string name, Parameters parameters, Action action) {
    add(makeCommand(std::move(name), std::move(parameters), std::move(action)));
  }
  /// The command that the words begin with; there must be at least one word.
  [[nodiscard]] Found find(std::span<const Word> words) const;

  /// All commands in the order of their names.
  [[nodiscard]] const std::map<std::string, Command, std::less<>>& all() const { return commands_; }

 private:
  /// The second words of the family that `word` begins, separated by commas; empty when it begins
  /// none.
  [[nodiscard]] std::string familyOf(std::string_view word) const;

  std::map<std::string, Command, std::less<>> commands_;
};

/// Every command that the desk has.
[[nodiscard]] CommandTable standardCommands();

}  // namespace orvane::desk::script
