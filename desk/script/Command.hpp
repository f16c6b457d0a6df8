// Command is one command of the script language.
#pragma once

#include <functional>
#include <string>

#include "desk/script/Arguments.hpp"
#include "desk/script/Complaint.hpp"
#include "desk/script/ScriptContext.hpp"

namespace orvane::desk::script {

struct Command {
  /// One word, or two when the first one begins a family, such as "display attach".
  std::string name;
  /// The shape of its arguments, for people; empty when it has none.
  std::string usage;
  /// Reads all arguments before it does anything; says what is wrong when it cannot be carried out.
  /// What falls due at the same instant is served by whoever calls it.
  std::function<Complaint(ScriptContext&, Arguments&)> run;
};

}  // namespace orvane::desk::script
