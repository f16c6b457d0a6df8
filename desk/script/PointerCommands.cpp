// The commands that move the pointer, hold keys and send events.
#include "desk/script/PointerCommands.hpp"

#include <array>
#include <cstdint>
#include <string_view>

#include <nlohmann/json.hpp>

#include "Orvane/guard/OrvaneModifier.hpp"
#include "desk/script/Decimal.hpp"
#include "desk/script/JsonText.hpp"
#include "desk/script/Thing.hpp"

namespace orvane::desk::script {

namespace {

/// Reads all words that remain as keys and returns their bits.
std::uint64_t readModifiers(Arguments& arguments) {
  constexpr std::array<OrvaneModifier, 4> keys = {OrvaneModifier::option, OrvaneModifier::control,
                                                  OrvaneModifier::shift, OrvaneModifier::command};
  constexpr std::array<std::string_view, 4> names = {"option", "control", "shift", "command"};
  std::uint64_t flags = 0;
  while (!arguments.isEmpty()) {
    flags |= static_cast<std::uint64_t>(keys[arguments.choice("KEY", names)].flagMask());
  }
  return flags;
}

CGPoint readPoint(Arguments& arguments) {
  const double x = arguments.coordinate("X");
  const double y = arguments.coordinate("Y");
  return CGPointMake(x, y);
}

Complaint move(ScriptContext& context, Arguments& arguments) {
  const CGPoint goal = readPoint(arguments);
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().mouse.moveTo(goal);
  return std::nullopt;
}

Complaint push(ScriptContext& context, Arguments& arguments) {
  const double dx = arguments.coordinate("DX");
  const double dy = arguments.coordinate("DY");
  std::int64_t times = 1;
  std::int64_t interval = 0;
  if (arguments.keyword("times")) {
    times = arguments.integer("N", 0, context.limits.repetitions);
  }
  if (arguments.keyword("every")) {
    const std::int64_t left = context.limits.clockNanoseconds - context.machine().clock.now();
    interval = arguments.nanoseconds("S", left);
    if (times > 1 && interval > left / (times - 1)) {
      arguments.complain("that would take longer than the clock runs");
    }
  }
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  for (std::int64_t count = 0; count < times; ++count) {
    if (count > 0) {
      context.machine().runLoop.advance(interval);
    }
    context.machine().mouse.moveBy(dx, dy);
  }
  return std::nullopt;
}

Complaint setCursor(ScriptContext& context, Arguments& arguments) {
  constexpr std::array<std::string_view, 2> choices = {"held", "free"};
  const bool isFree = arguments.choice("held|free", choices) == 1;
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().mouse.setCursor(isFree ? Mouse::Cursor::free : Mouse::Cursor::held);
  return std::nullopt;
}

Complaint hold(ScriptContext& context, Arguments& arguments) {
  if (arguments.isEmpty()) {
    arguments.complain("KEY is missing");
  }
  const std::uint64_t flags = readModifiers(arguments);
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().modifierKeys.hold(flags);
  return std::nullopt;
}

Complaint releaseKeys(ScriptContext& context, Arguments& arguments) {
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().modifierKeys.releaseAll();
  return std::nullopt;
}

Complaint event(ScriptContext& context, Arguments& arguments) {
  const CGPoint place = readPoint(arguments);
  const std::uint64_t flags = readModifiers(arguments);
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  const std::optional<CGPoint> result = context.machine().mouse.post(place, flags);
  Json printed = {{"x", nullptr}, {"y", nullptr}};
  if (result) {
    printed = {{"x", result->x}, {"y", result->y}};
  }
  context.output << jsonText(printed) << '\n';
  return std::nullopt;
}

Complaint burst(ScriptContext& context, Arguments& arguments) {
  const std::int64_t count = arguments.integer("N", 0, context.limits.repetitions);
  const CGPoint place = readPoint(arguments);
  const std::uint64_t flags = readModifiers(arguments);
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  for (std::int64_t index = 0; index < count; ++index) {
    context.machine().mouse.post(place, flags);
  }
  return std::nullopt;
}

}  // namespace

void addPointerCommands(CommandTable& table) {
  table.add({"move", "X Y", move});
  table.add({"push", "DX DY [times N] [every S]", push});
  table.add({"cursor", "held|free", setCursor});
  table.add({"hold", "KEY...", hold});
  table.add({"release", "", releaseKeys});
  table.add({"event", "X Y [KEY...]", event});
  table.add({"burst", "N X Y [KEY...]", burst});
}

}  // namespace orvane::desk::script
