// The commands that concern the machine as a whole: a new one, and the passing of time.
#include "desk/script/MachineCommands.hpp"

#include <cstdint>

namespace orvane::desk::script {

namespace {

Complaint reset(ScriptContext& context, Arguments& arguments) {
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.session.reset();
  return std::nullopt;
}

Complaint advance(ScriptContext& context, Arguments& arguments) {
  RunLoop& runLoop = context.machine().runLoop;
  const std::int64_t left = context.limits.clockNanoseconds - context.machine().clock.now();
  const std::int64_t duration = arguments.nanoseconds("S", left);
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  runLoop.advance(duration);
  return std::nullopt;
}

}  // namespace

void addMachineCommands(CommandTable& table) {
  table.add({"reset", "", reset});
  table.add({"advance", "S", advance});
}

}  // namespace orvane::desk::script
