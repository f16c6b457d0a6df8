// The commands that make the system moody: sources refused, notifications late or doubled.
#include "desk/script/FaultCommands.hpp"

#include <array>
#include <cstdint>
#include <string_view>

namespace orvane::desk::script {

namespace {

Complaint setSources(ScriptContext& context, Arguments& arguments) {
  constexpr std::array<std::string_view, 2> choices = {"allow", "refuse"};
  const bool refuses = arguments.choice("allow|refuse", choices) == 1;
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().runLoop.setRefusesSources(refuses);
  return std::nullopt;
}

Complaint setNotifications(ScriptContext& context, Arguments& arguments) {
  constexpr std::array<std::string_view, 3> choices = {"prompt", "late", "doubled"};
  constexpr std::int64_t longestDelay = 3600 * Clock::nanosecondsPerSecond;
  const std::size_t choice = arguments.choice("prompt|late|doubled", choices);
  const std::int64_t delay = choice == 1 ? arguments.nanoseconds("S", longestDelay) : 0;
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().notifications = {.delayNanoseconds = delay, .isDoubled = choice == 2};
  return std::nullopt;
}

}  // namespace

void addFaultCommands(CommandTable& table) {
  table.add({"sources", "allow|refuse", setSources});
  table.add({"notifications", "prompt|late S|doubled", setNotifications});
}

}  // namespace orvane::desk::script
