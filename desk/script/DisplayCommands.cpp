// The commands that attach, detach and rearrange displays.
#include "desk/script/DisplayCommands.hpp"

#include <array>
#include <cstdint>
#include <utility>

namespace orvane::desk::script {

namespace {

constexpr std::int64_t mostBitsPerSample = 1024;

CGRect rectOf(const std::array<double, 4>& numbers) {
  return CGRectMake(numbers[0], numbers[1], numbers[2], numbers[3]);
}

std::optional<int> bitsPerSample(Arguments& arguments, std::optional<int> unless) {
  const std::optional<std::string> value = arguments.option("bits");
  if (!value) {
    return unless;
  }
  const Word word{.text = *value, .begin = 0, .end = 0, .complaint = {}};
  Arguments one({&word, 1}, *value);
  const std::int64_t bits = one.integer("bits", 0, mostBitsPerSample);
  if (Complaint complaint = one.finish()) {
    arguments.complain(*complaint);
  }
  return static_cast<int>(bits);
}

Complaint attach(ScriptContext& context, Arguments& arguments) {
  Display display;
  display.frame = rectOf(arguments.rectangleOption("frame"));
  display.uuid = arguments.option("uuid");
  display.name = arguments.option("name").value_or("");
  display.bitsPerSample = bitsPerSample(arguments, display.bitsPerSample);
  if (std::optional<std::string> colorSpace = arguments.option("colorspace")) {
    display.colorSpace = std::move(colorSpace);
  }
  display.isBuiltIn = arguments.flag("builtin");
  display.hasNumberInDescription = !arguments.flag("nonumber");
  const bool asMain = arguments.flag("main");
  display.number = arguments.displayNumber("N");
  if (display.uuid && display.uuid->empty()) {
    arguments.complain("uuid must not be empty");
  }
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  return context.machine().displays.attach(std::move(display), asMain);
}

Complaint detach(ScriptContext& context, Arguments& arguments) {
  const std::uint32_t number = arguments.displayNumber("N");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  return context.machine().displays.detach(number);
}

Complaint setFrame(ScriptContext& context, Arguments& arguments) {
  const std::uint32_t number = arguments.displayNumber("N");
  const CGRect frame = rectOf(arguments.rectangle("X,Y,W,H"));
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  return context.machine().displays.setFrame(number, frame);
}

Complaint renumber(ScriptContext& context, Arguments& arguments) {
  const std::uint32_t number = arguments.displayNumber("N");
  const std::uint32_t newNumber = arguments.displayNumber("M");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  return context.machine().displays.renumber(number, newNumber);
}

Complaint setMain(ScriptContext& context, Arguments& arguments) {
  const std::uint32_t number = arguments.displayNumber("N");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  return context.machine().displays.setMain(number);
}

Complaint beginTogether(ScriptContext& context, Arguments& arguments) {
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  return context.machine().displays.beginTogether();
}

Complaint endTogether(ScriptContext& context, Arguments& arguments) {
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  return context.machine().displays.endTogether();
}

}  // namespace

void addDisplayCommands(CommandTable& table) {
  table.add({"display attach",
             "N frame=X,Y,W,H [uuid=U] [name=\"...\"] [builtin] [main] [bits=B] "
             "[colorspace=\"...\"] [nonumber]",
             attach});
  table.add({"display detach", "N", detach});
  table.add({"display frame", "N X,Y,W,H", setFrame});
  table.add({"display renumber", "N M", renumber});
  table.add({"display main", "N", setMain});
  table.add({"display together", "", beginTogether});
  table.add({"display done", "", endTogether});
}

}  // namespace orvane::desk::script
