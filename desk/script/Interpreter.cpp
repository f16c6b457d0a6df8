// The interpreter executes a script line by line.
#include "desk/script/Interpreter.hpp"

#include <span>
#include <string>

#include "desk/script/Lexer.hpp"

namespace orvane::desk::script {

Problem Interpreter::run(std::string_view line) {
  const LexedLine lexed = lexLine(line);
  if (lexed.problem || lexed.words.empty()) {
    return lexed.problem;
  }
  const std::span<const Word> words(lexed.words);
  const CommandTable::Found found = commands_.find(words);
  if (found.command == nullptr) {
    return found.problem;
  }
  Arguments arguments(words.subspan(found.nameWords), line);
  if (const Problem problem = found.command->run(context_, arguments)) {
    const std::string usage = found.command->name + " " + found.command->usage;
    const bool explains = arguments.isWrong() && !found.command->usage.empty();
    return found.command->name + ": " + *problem + (explains ? " (" + usage + ")" : "");
  }
  context_.machine().runDue();
  return std::nullopt;
}

}  // namespace orvane::desk::script
