// The commands of the script language, by name.
#include "desk/script/Commands.hpp"

#include "desk/hand/InQuotes.hpp"

namespace orvane::desk::script {

void CommandTable::add(Command command) {
  std::string name = command.name;
  commands_.insert_or_assign(std::move(name), std::move(command));
}

CommandTable::Found CommandTable::find(std::span<const Word> words) const {
  const std::string& first = words.front().text;
  if (words.size() > 1) {
    const auto found = commands_.find(first + " " + words[1].text);
    if (found != commands_.end()) {
      return {&found->second, 2, std::nullopt};
    }
  }
  const auto found = commands_.find(first);
  if (found != commands_.end()) {
    return {&found->second, 1, std::nullopt};
  }
  const std::string family = familyOf(first);
  if (family.empty()) {
    return {nullptr, 0, "unknown command " + inQuotes(first)};
  }
  if (words.size() == 1) {
    return {nullptr, 0, first + " must be followed by one of " + family};
  }
  return {nullptr, 0, first + " has no command \"" + words[1].text + "\", only " + family};
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
