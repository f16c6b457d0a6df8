// The commands that open and close the status item's menu.
#include "desk/script/MenuCommands.hpp"

#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::script {

namespace {

Complaint openMenu(ScriptContext& context, Arguments& arguments) {
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  WindowServer& server = WindowServer::current();
  if (server.menus.isStatusMenuOpen()) {
    return std::nullopt;
  }
  if (context.machine().displays.isEmpty()) {
    return "there is no display with a menu bar";
  }
  if (server.statusBar.item() == nullptr || server.statusBar.item()->menu == nullptr) {
    return "there is no status item with a menu";
  }
  const auto display = context.machine().pointer.displayIndex();
  if (!server.menus.openStatusMenu(display.value_or(0))) {
    return "a modal window keeps the menu back";
  }
  return std::nullopt;
}

Complaint closeMenu(ScriptContext&, Arguments& arguments) {
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  WindowServer::current().menus.close();
  return std::nullopt;
}

}  // namespace

void addMenuCommands(CommandTable& table) {
  table.add({"menu open", "", openMenu});
  table.add({"menu close", "", closeMenu});
}

}  // namespace orvane::desk::script
