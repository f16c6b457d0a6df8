// The commands that operate windows, the menu and what is in them.
#include <array>
#include <optional>
#include <string>
#include <utility>

#include "Orvane/ui/KeyboardShortcut.hpp"
#include "desk/hand/Hand.hpp"
#include "desk/script/Commands.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::script {

namespace {

std::optional<std::string> readSurface(Arguments& arguments) {
  return arguments.keyword("in") ? std::optional(arguments.text("SURFACE")) : std::nullopt;
}

ControlName readControlName(ScriptContext& /*context*/, Arguments& arguments) {
  constexpr std::int64_t greatestCount = 1000;
  ControlName name;
  name.label = arguments.text("\"LABEL\"");
  name.surface = readSurface(arguments);
  if (arguments.keyword("nth")) {
    name.nth = arguments.integer("N", 1, greatestCount);
  }
  return name;
}

Parameter<ControlName> control() {
  return {"\"LABEL\" [in SURFACE] [nth N]", readControlName};
}

struct Picked {
  ControlName name;
  std::string item;
};

Picked readPicked(ScriptContext& /*context*/, Arguments& arguments) {
  Picked picked;
  picked.name.label = arguments.text("\"LABEL\"");
  picked.item = arguments.text("\"ITEM\"");
  picked.name.surface = readSurface(arguments);
  return picked;
}

ui::KeyEvent readKey(ScriptContext& context, Arguments& arguments) {
  constexpr std::array<std::pair<const char*, ui::Key>, 8> keys = {{{"escape", ui::Key::escape},
                                                                    {"return", ui::Key::enter},
                                                                    {"space", ui::Key::space},
                                                                    {"tab", ui::Key::tab},
                                                                    {"left", ui::Key::left},
                                                                    {"right", ui::Key::right},
                                                                    {"up", ui::Key::up},
                                                                    {"down", ui::Key::down}}};
  const std::string name = arguments.text("KEY");
  const auto flags = static_cast<std::uint64_t>(context.machine().modifierKeys.flags());
  ui::KeyEvent event{
      ui::Key::character,
      {(flags & kCGEventFlagMaskShift) != 0, (flags & kCGEventFlagMaskControl) != 0,
       (flags & kCGEventFlagMaskAlternate) != 0, (flags & kCGEventFlagMaskCommand) != 0},
      {}};
  for (const auto& [known, key] : keys) {
    if (name == known) {
      event.key = key;
      return event;
    }
  }
  event.characters = name;
  if (name.size() != 1 || name.front() <= ' ' || name.front() >= 127) {
    arguments.complain("there is no key \"" + name +
                       "\", only escape, return, space, tab, left, right, up, down and characters");
  }
  return event;
}

}  // namespace

void addSurfaceCommands(CommandTable& table) {
  table.add("menu open", takes(), [](Machine& machine) { return Hand(machine).openStatusMenu(); });
  table.add("menu close", takes(), [](Machine&) { WindowServer::current().menus.close(); });
  table.add("press", takes(control()),
            [](Machine& machine, const ControlName& name) { return Hand(machine).press(name); });
  table.add("hover", takes(control()),
            [](Machine& machine, const ControlName& name) { return Hand(machine).hover(name); });
  table.add("pick", takes(Parameter<Picked>{R"("LABEL" "ITEM" in SURFACE)", readPicked}),
            [](Machine& machine, const Picked& picked) {
              return Hand(machine).pick(picked.name, picked.item);
            });
  table.add("close", takes(text("SURFACE")), [](Machine& machine, const std::string& surface) {
    return Hand(machine).close(surface);
  });
  table.add("minimise", takes(text("SURFACE")), [](Machine& machine, const std::string& surface) {
    return Hand(machine).minimise(surface);
  });
  table.add("drag", takes(text("SURFACE"), coordinate("DX"), coordinate("DY")),
            [](Machine& machine, const std::string& surface, double dx, double dy) {
              return Hand(machine).dragWindow(surface, dx, dy);
            });
  table.add("drop icon", takes(), [](Machine& machine) { return Hand(machine).dropIcon(); });
  table.add("click", takes(point()),
            [](Machine& machine, CGPoint place) { Hand(machine).click(place); });
  table.add("scroll", takes(coordinate("DX"), coordinate("DY")),
            [](Machine& machine, double dx, double dy) { machine.mouse.turnWheel(dx, dy); });
  table.add("key", takes(Parameter<ui::KeyEvent>{"KEY", readKey}),
            [](Machine& machine, const ui::KeyEvent& event) { Hand(machine).key(event); });
}

}  // namespace orvane::desk::script
