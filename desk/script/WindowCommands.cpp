// The commands that operate windows and what is in them.
#include "desk/script/WindowCommands.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "desk/script/ControlSearch.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::script {

namespace {

using Window = std::shared_ptr<DeskWindow>;

Complaint press(ScriptContext& context, Arguments& arguments) {
  const ControlSearch search = readControlSearch(context, arguments);
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  const FoundControl found = findControl(search);
  if (!found.control) {
    return found.complaint;
  }
  if (!found.control->press()) {
    return "\"" + search.label + "\" did not take the press";
  }
  return std::nullopt;
}

Complaint pick(ScriptContext& context, Arguments& arguments) {
  ControlSearch search;
  search.label = arguments.text("\"LABEL\"");
  const std::string title = arguments.text("\"ITEM\"");
  readSurface(context, arguments, search);
  search.role = ui::Role::popUpButton;
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  const FoundControl found = findControl(search);
  if (!found.control) {
    return found.complaint;
  }
  found.control->press();
  context.machine().runDue();
  MenuTracker& menus = WindowServer::current().menus;
  if (!menus.isOpen()) {
    return "\"" + search.label + "\" opened no menu";
  }
  const auto& items = menus.menu()->items;
  for (std::size_t index = 0; index < items.size(); ++index) {
    if (items[index].title == title) {
      return menus.choose(index) ? std::nullopt
                                 : Complaint("the item \"" + title + "\" is disabled");
    }
  }
  menus.close();
  return "there is no item \"" + title + "\"";
}

/// A command on the window that its next word names.
std::function<Complaint(ScriptContext&, Arguments&)> onWindow(
    Complaint (*action)(const std::string& name, const Window& window)) {
  return [action](ScriptContext&, Arguments& arguments) -> Complaint {
    const std::string name = arguments.text("SURFACE");
    if (Complaint complaint = arguments.finish()) {
      return complaint;
    }
    const FoundWindow found = findWindow(name);
    return found.window != nullptr ? action(name, found.window) : found.complaint;
  };
}

Complaint closeWindow(const std::string& /*name*/, const Window& window) {
  WindowServer::current().close(window);
  return std::nullopt;
}

Complaint minimiseWindow(const std::string& name, const Window& window) {
  WindowServer::current().miniaturize(window);
  return window->isMiniaturized ? std::nullopt : Complaint("\"" + name + "\" cannot be minimised");
}

/// A place on the screen where a press moves the window, in global coordinates.
std::optional<CGPoint> backgroundOf(const WindowServer& server, const DeskWindow& window) {
  constexpr double step = 6;
  const CGPoint corner = server.topLeftOf(window);
  for (double y = step; y < window.frame.size.height; y += step) {
    for (double x = step; x < window.frame.size.width; x += step) {
      const CGPoint place{corner.x + x, corner.y + y};
      const CGPoint flipped = server.machine().displays.flipped(place);
      const bool isBackground = window.isMovableByBackground &&
                                (window.content == nullptr || window.content->host().movesWindowAt(
                                                                  window.contentPoint(flipped)));
      const bool isOnDisplay = server.machine().displays.indexContaining(place).has_value();
      if (isOnDisplay && isBackground && server.windowAt(place).get() == &window) {
        return place;
      }
    }
  }
  return std::nullopt;
}

Complaint drag(ScriptContext& context, Arguments& arguments) {
  const std::string name = arguments.text("SURFACE");
  const double dx = arguments.coordinate("DX");
  const double dy = arguments.coordinate("DY");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  const FoundWindow found = findWindow(name);
  if (found.window == nullptr) {
    return found.complaint;
  }
  WindowServer& server = WindowServer::current();
  const Window& window = found.window;
  if (window->content != nullptr) {
    window->content->update();
  }
  const std::optional<CGPoint> place = backgroundOf(server, *window);
  if (!place) {
    return "\"" + name + "\" has no background to be dragged by";
  }
  Machine& machine = context.machine();
  machine.mouse.moveTo(*place);
  machine.mouse.pressButton();
  machine.runDue();
  const CGPoint before = window->frame.origin;
  machine.mouse.moveBy(dx, dy);
  const CGPoint after = window->frame.origin;
  machine.mouse.releaseButton();
  if ((dx != 0 || dy != 0) && before.x == after.x && before.y == after.y) {
    return "\"" + name + "\" did not move";
  }
  return std::nullopt;
}

}  // namespace

void addWindowCommands(CommandTable& table) {
  table.add({"press", "\"LABEL\" [in SURFACE] [nth N]", press});
  table.add({"pick", R"("LABEL" "ITEM" in SURFACE)", pick});
  table.add({"close", "SURFACE", onWindow(closeWindow)});
  table.add({"minimise", "SURFACE", onWindow(minimiseWindow)});
  table.add({"drag", "SURFACE DX DY", drag});
}

}  // namespace orvane::desk::script
