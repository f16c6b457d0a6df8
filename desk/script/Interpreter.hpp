// The interpreter carries out a script line by line.
#pragma once

#include <string_view>

#include "desk/script/CommandTable.hpp"
#include "desk/script/Problem.hpp"
#include "desk/script/ScriptContext.hpp"

namespace orvane::desk::script {

class Interpreter {
 public:
  /// Both must outlive the interpreter.
  Interpreter(const CommandTable& commands, ScriptContext& context)
      : commands_(commands), context_(context) {}

  /// Carries out one line and then serves all that is due at the present instant, so that the
  /// machine is at rest when it returns. An empty line does nothing. Says why the line could not be
  /// carried out.
  Problem run(std::string_view line);

 private:
  const CommandTable& commands_;
  ScriptContext& context_;
};

}  // namespace orvane::desk::script
