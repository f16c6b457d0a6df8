// The commands for the whole machine and its displays.
#include <cstdint>
#include <optional>
#include <utility>

#include "desk/script/Commands.hpp"

namespace orvane::desk::script {

namespace {

constexpr std::int64_t mostBitsPerSample = 1024;

struct NewDisplay {
  Display display;
  bool isMain = false;
};

NewDisplay readDisplay(ScriptContext& /*context*/, Arguments& arguments) {
  Display display;
  if (const auto frame = arguments.option("frame")) {
    display.frame = arguments.rectangle("frame", frame);
  } else {
    arguments.report("frame=X,Y,W,H is missing");
  }
  display.uuid = arguments.option("uuid");
  display.name = arguments.option("name").value_or("");
  if (const auto bits = arguments.option("bits")) {
    display.bitsPerSample = static_cast<int>(arguments.integer("bits", 0, mostBitsPerSample, bits));
  }
  if (std::optional<std::string> colorSpace = arguments.option("colorspace")) {
    display.colorSpace = std::move(colorSpace);
  }
  display.isBuiltIn = arguments.flag("builtin");
  display.hasNumberInDescription = !arguments.flag("nonumber");
  const bool isMain = arguments.flag("main");
  display.number = arguments.displayNumber("N");
  if (display.uuid && display.uuid->empty()) {
    arguments.report("uuid must not be empty");
  }
  return {std::move(display), isMain};
}

Parameter<CGRect> frame() {
  const std::string name = "X,Y,W,H";
  return {name, [name](ScriptContext&, Arguments& arguments) { return arguments.rectangle(name); }};
}

/// Seconds, within the limit of the clock.
Parameter<std::int64_t> duration() {
  return {"S", [](ScriptContext& context, Arguments& arguments) {
            return arguments.nanoseconds(
                "S", context.limits.clockNanoseconds - context.machine().clock.now());
          }};
}

/// An operation on the displays.
template <typename... Values>
auto onDisplays(Displays::Problem (Displays::*operation)(Values...)) {
  return [operation](Machine& machine, const Values&... values) {
    return (machine.displays.*operation)(values...);
  };
}

}  // namespace

void addMachineCommands(CommandTable& table) {
  table.add("reset", takes(), [](ScriptContext& context) { context.session.reset(); });
  table.add("advance", takes(duration()), [](Machine& machine, std::int64_t nanoseconds) {
    machine.runLoop.advance(nanoseconds);
  });
  table.add("display attach",
            takes(Parameter<NewDisplay>{
                "N frame=X,Y,W,H [uuid=U] [name=\"...\"] [builtin] [main] [bits=B] "
                "[colorspace=\"...\"] [nonumber]",
                readDisplay}),
            [](Machine& machine, NewDisplay added) {
              return machine.displays.attach(std::move(added.display), added.isMain);
            });
  table.add("display detach", takes(displayNumber("N")), onDisplays(&Displays::detach));
  table.add("display frame", takes(displayNumber("N"), frame()), onDisplays(&Displays::setFrame));
  table.add("display renumber", takes(displayNumber("N"), displayNumber("M")),
            onDisplays(&Displays::renumber));
  table.add("display main", takes(displayNumber("N")), onDisplays(&Displays::setMain));
  table.add("display together", takes(), onDisplays(&Displays::beginChanges));
  table.add("display done", takes(), onDisplays(&Displays::endChanges));
}

}  // namespace orvane::desk::script
