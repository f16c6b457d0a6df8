// The interpreter executes a script line by line.
#pragma once

#include <string_view>

#include "desk/script/Commands.hpp"
#include "desk/script/Problem.hpp"
#include "desk/script/ScriptContext.hpp"

namespace orvane::desk::script {

class Interpreter {
 public:
  /// Both must outlive the interpreter.
  Interpreter(const CommandTable& commands, ScriptContext& context)
      : commands_(commands), context_(context) {}

  /// Executes one line and then all tasks that are due. An empty line does nothing. Returns why the
  /// line failed.
  Problem run(std::string_view line);

 private:
  const CommandTable& commands_;
  ScriptContext& context_;
};

}  // namespace orvane::desk::script
