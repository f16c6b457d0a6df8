// The commands for the pointer, held keys and events.
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include <nlohmann/json.hpp>

#include "Orvane/guard/OrvaneModifier.hpp"
#include "desk/script/Commands.hpp"
#include "desk/script/Inspectables.hpp"
#include "desk/script/JsonText.hpp"

namespace orvane::desk::script {

namespace {

using Bits = std::uint64_t;

struct Push {
  double dx = 0;
  double dy = 0;
  std::int64_t times = 1;
  /// Nanoseconds.
  std::int64_t interval = 0;
};

/// Reads all remaining words as modifiers and returns their flags.
Bits readModifiers(ScriptContext& /*context*/, Arguments& arguments) {
  constexpr std::array<OrvaneModifier, 4> keys = {OrvaneModifier::option, OrvaneModifier::control,
                                                  OrvaneModifier::shift, OrvaneModifier::command};
  constexpr std::array<std::string_view, 4> names = {"option", "control", "shift", "command"};
  Bits flags = 0;
  while (!arguments.isEmpty()) {
    flags |= static_cast<Bits>(keys[arguments.choice("KEY", names)].flagMask());
  }
  return flags;
}

Parameter<Bits> modifiers() {
  return {"[KEY...]", readModifiers};
}

/// The same, at least one.
Parameter<Bits> someModifiers() {
  return {"KEY...", [](ScriptContext& context, Arguments& arguments) {
            if (arguments.isEmpty()) {
              arguments.report("KEY is missing");
            }
            return readModifiers(context, arguments);
          }};
}

Parameter<std::int64_t> repetitions() {
  return {"N", [](ScriptContext& context, Arguments& arguments) {
            return arguments.integer("N", 0, context.limits.repetitions);
          }};
}

Push readPush(ScriptContext& context, Arguments& arguments) {
  Push push;
  push.dx = arguments.coordinate("DX");
  push.dy = arguments.coordinate("DY");
  if (arguments.keyword("times")) {
    push.times = arguments.integer("N", 0, context.limits.repetitions);
  }
  if (arguments.keyword("every")) {
    const std::int64_t left = context.limits.clockNanoseconds - context.machine().clock.now();
    push.interval = arguments.nanoseconds("S", left);
    if (push.times > 1 && push.interval > left / (push.times - 1)) {
      arguments.report("that exceeds the limit of the clock");
    }
  }
  return push;
}

void carryOutPush(Machine& machine, const Push& push) {
  for (std::int64_t count = 0; count < push.times; ++count) {
    if (count > 0) {
      machine.runLoop.advance(push.interval);
    }
    machine.mouse.moveBy(push.dx, push.dy);
  }
}

void sendEvent(ScriptContext& context, CGPoint place, Bits flags) {
  const std::optional<CGPoint> result = context.machine().mouse.post(place, flags);
  Json printed = {{"x", nullptr}, {"y", nullptr}};
  if (result) {
    printed = {{"x", result->x}, {"y", result->y}};
  }
  context.output << jsonText(printed) << '\n';
}

void sendBurst(Machine& machine, std::int64_t count, CGPoint place, Bits flags) {
  for (std::int64_t index = 0; index < count; ++index) {
    machine.mouse.post(place, flags);
  }
}

}  // namespace

void addPointerCommands(CommandTable& table) {
  table.add("move", takes(point()),
            [](Machine& machine, CGPoint goal) { machine.mouse.moveTo(goal); });
  table.add("push", takes(Parameter<Push>{"DX DY [times N] [every S]", readPush}), carryOutPush);
  table.add("cursor", takes(either("held|free", "held", "free")),
            [](Machine& machine, bool isFree) {
              machine.mouse.setCursor(isFree ? Mouse::Cursor::free : Mouse::Cursor::held);
            });
  table.add("hold", takes(someModifiers()),
            [](Machine& machine, Bits flags) { machine.modifierKeys.hold(flags); });
  table.add("release", takes(), [](Machine& machine) { machine.modifierKeys.releaseAll(); });
  table.add("event", takes(point(), modifiers()), sendEvent);
  table.add("burst", takes(repetitions(), point(), modifiers()), sendBurst);
}

}  // namespace orvane::desk::script
