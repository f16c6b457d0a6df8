// The interpreter carries out a script line by line.
#include "desk/script/Interpreter.hpp"

#include <span>
#include <string>

#include "desk/script/Lexer.hpp"

namespace orvane::desk::script {

Complaint Interpreter::run(std::string_view line) {
  const LexedLine lexed = lexLine(line);
  if (lexed.complaint || lexed.words.empty()) {
    return lexed.complaint;
  }
  const std::span<const Word> words(lexed.words);
  const CommandTable::Found found = commands_.find(words);
  if (found.command == nullptr) {
    return found.complaint;
  }
  Arguments arguments(words.subspan(found.nameWords), line);
  if (const Complaint complaint = found.command->run(context_, arguments)) {
    const std::string usage = found.command->name + " " + found.command->usage;
    const bool explains = arguments.isWrong() && !found.command->usage.empty();
    return found.command->name + ": " + *complaint + (explains ? " (" + usage + ")" : "");
  }
  context_.machine().runDue();
  return std::nullopt;
}

}  // namespace orvane::desk::script
