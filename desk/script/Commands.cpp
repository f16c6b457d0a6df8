// Finds the command of a line by its first words and executes it.
#include "desk/script/Commands.hpp"

#include <algorithm>

#include "desk/hand/InQuotes.hpp"

namespace orvane::desk::script {

void CommandTable::add(Command command) {
  std::string name = command.name;
  commands_.insert_or_assign(std::move(name), std::move(command));
}

Problem CommandTable::run(std::string_view line, ScriptContext& context) const {
  const LexedLine lexed = lexLine(line);
  if (lexed.problem || lexed.words.empty()) {
    return lexed.problem;
  }
  const std::span<const Word> words(lexed.words);
  std::size_t nameWords = std::min<std::size_t>(words.size(), 2);
  auto found = commands_.find(words.front().text + (nameWords == 2 ? " " + words[1].text : ""));
  if (found == commands_.end()) {
    nameWords = 1;
    found = commands_.find(words.front().text);
  }
  if (found == commands_.end()) {
    return problemWith(words);
  }
  const Command& command = found->second;
  Arguments arguments(words.subspan(nameWords), line);
  if (const Problem problem = command.run(context, arguments)) {
    const bool explains = arguments.isWrong() && !command.usage.empty();
    return command.name + ": " + *problem +
           (explains ? " (" + command.name + " " + command.usage + ")" : "");
  }
  context.machine().runDue();
  return std::nullopt;
}

Problem CommandTable::problemWith(std::span<const Word> words) const {
  const std::string& first = words.front().text;
  const std::string family = familyOf(first);
  if (family.empty()) {
    return "unknown command " + inQuotes(first);
  }
  return words.size() == 1
             ? first + " must be followed by one of " + family
             : first + " has no command " + inQuotes(words[1].text) + ", only " + family;
}

std::string CommandTable::familyOf(std::string_view word) const {
  const std::string prefix = std::string(word) + " ";
  std::string family;
  for (auto entry = commands_.lower_bound(prefix);
       entry != commands_.end() && entry->first.starts_with(prefix); ++entry) {
    family += family.empty() ? "" : ", ";
    family += entry->first.substr(prefix.size());
  }
  return family;
}

CommandTable standardCommands() {
  CommandTable table;
  addMachineCommands(table);
  addSystemCommands(table);
  addApplicationCommands(table);
  addPointerCommands(table);
  addSurfaceCommands(table);
  addLookingCommands(table);
  return table;
}

}  // namespace orvane::desk::script
