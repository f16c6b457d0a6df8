// The commands for windows, the menu and their controls.
#include <array>
#include <optional>
#include <string>
#include <utility>

#include "Orvane/ui/views/KeyboardShortcut.hpp"
#include "desk/hand/Hand.hpp"
#include "desk/script/Commands.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::script {

namespace {

/// Nothing, or "in SURFACE".
Parameter<std::optional<std::string>> surface(const std::string& usage) {
  return {usage, [](ScriptContext&, Arguments& arguments) {
            return arguments.keyword("in") ? std::optional(arguments.text("SURFACE"))
                                           : std::nullopt;
          }};
}

/// Nothing, or "nth N", from 1.
Parameter<std::int64_t> nth() {
  return {"[nth N]", [](ScriptContext&, Arguments& arguments) {
            constexpr std::int64_t greatestCount = 1000;
            return arguments.keyword("nth") ? arguments.integer("N", 1, greatestCount) : 1;
          }};
}

/// A command on the control with a label.
auto onControl(Hand::Refusal (Hand::*action)(const ControlName&) const) {
  return [action](Machine& machine, const std::string& label,
                  const std::optional<std::string>& place, std::int64_t number) {
    return (Hand(machine).*action)({label, place, number});
  };
}

/// A command on the window with a surface name.
auto onWindow(Hand::Refusal (Hand::*action)(const std::string&) const) {
  return
      [action](Machine& machine, const std::string& name) { return (Hand(machine).*action)(name); };
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
    arguments.report("there is no key \"" + name +
                     "\", only escape, return, space, tab, left, right, up, down and characters");
  }
  return event;
}

}  // namespace

void addSurfaceCommands(CommandTable& table) {
  table.add("menu open", takes(), [](Machine& machine) { return Hand(machine).openStatusMenu(); });
  table.add("menu close", takes(), [](Machine&) { WindowServer::current().menus.close(); });
  const auto control = takes(text("\"LABEL\""), surface("[in SURFACE]"), nth());
  table.add("press", control, onControl(&Hand::press));
  table.add("hover", control, onControl(&Hand::hover));
  table.add("pick", takes(text("\"LABEL\""), text("\"ITEM\""), surface("in SURFACE")),
            [](Machine& machine, const std::string& label, const std::string& item,
               const std::optional<std::string>& place) {
              return Hand(machine).pick({label, place}, item);
            });
  table.add("close", takes(text("SURFACE")), onWindow(&Hand::close));
  table.add("minimise", takes(text("SURFACE")), onWindow(&Hand::minimise));
  table.add("drag", takes(text("SURFACE"), coordinate("DX"), coordinate("DY")),
            [](Machine& machine, const std::string& name, double dx, double dy) {
              return Hand(machine).dragWindow(name, dx, dy);
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
