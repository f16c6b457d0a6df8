// The commands of the hand: the pointer over a control, clicks, the wheel, keys and drops.
#include "desk/script/InputCommands.hpp"

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "desk/script/ControlSearch.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::script {

namespace {

Complaint hover(ScriptContext& context, Arguments& arguments) {
  const ControlSearch search = readControlSearch(context, arguments);
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  const FoundControl found = findControl(search);
  if (!found.control) {
    return found.complaint;
  }
  const CGRect& frame = found.control->frameInSight;
  if (frame.size.width <= 0 || frame.size.height <= 0) {
    return "\"" + search.label + "\" is scrolled out of sight";
  }
  context.machine().mouse.moveTo({CGRectGetMidX(frame), CGRectGetMidY(frame)});
  return std::nullopt;
}

Complaint click(ScriptContext& context, Arguments& arguments) {
  const double x = arguments.coordinate("X");
  const double y = arguments.coordinate("Y");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  // Somebody has to hear of it, also when nothing has been shown yet.
  WindowServer::current();
  Machine& machine = context.machine();
  machine.mouse.moveTo({x, y});
  machine.runDue();
  machine.mouse.pressButton();
  machine.runDue();
  machine.mouse.releaseButton();
  return std::nullopt;
}

Complaint scroll(ScriptContext& context, Arguments& arguments) {
  const double dx = arguments.coordinate("DX");
  const double dy = arguments.coordinate("DY");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.machine().mouse.turnWheel(dx, dy);
  return std::nullopt;
}

std::optional<ui::KeyEvent> keyNamed(const std::string& name) {
  static const std::map<std::string, ui::Key> keys = {
      {"escape", ui::Key::escape}, {"return", ui::Key::enter}, {"space", ui::Key::space},
      {"tab", ui::Key::tab},       {"left", ui::Key::left},    {"right", ui::Key::right},
      {"up", ui::Key::up},         {"down", ui::Key::down},
  };
  const auto found = keys.find(name);
  if (found != keys.end()) {
    return ui::KeyEvent{found->second, {}, {}};
  }
  if (name.size() == 1 && name.front() > ' ' && name.front() < 127) {
    return ui::KeyEvent{ui::Key::character, {}, name};
  }
  return std::nullopt;
}

Complaint key(ScriptContext& context, Arguments& arguments) {
  const std::string name = arguments.text("KEY");
  std::optional<ui::KeyEvent> event = keyNamed(name);
  if (!event) {
    arguments.complain("there is no key \"" + name +
                       "\", only escape, return, space, tab, left, right, up, down and characters");
  }
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  const auto flags = static_cast<std::uint64_t>(context.machine().modifierKeys.flags());
  event->modifiers = {(flags & kCGEventFlagMaskShift) != 0, (flags & kCGEventFlagMaskControl) != 0,
                      (flags & kCGEventFlagMaskAlternate) != 0,
                      (flags & kCGEventFlagMaskCommand) != 0};
  WindowServer::current().keyDown(*event);
  return std::nullopt;
}

/// The first place in the window's content, looked for in steps, of which `isRight` is true; in
/// global coordinates.
template <typename Predicate>
std::optional<CGPoint> placeIn(const WindowServer& server, const DeskWindow& window,
                               Predicate isRight) {
  constexpr double step = 4;
  const CGRect content = server.machine().displays.flipped(window.contentFrame());
  for (double y = step; y < content.size.height; y += step) {
    for (double x = step; x < content.size.width; x += step) {
      const CGPoint place{content.origin.x + x, content.origin.y + y};
      if (isRight(ui::Point{x, y}) && server.windowAt(place).get() == &window) {
        return place;
      }
    }
  }
  return std::nullopt;
}

Complaint dropIcon(ScriptContext& context, Arguments& arguments) {
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  WindowServer& server = WindowServer::current();
  const Surfaces surfaces(server);
  const auto guide = surfaces.window("guide");
  const auto system = surfaces.window("system");
  if (guide == nullptr || system == nullptr || guide->content == nullptr || !system->dropTarget) {
    return "it takes the surfaces \"guide\" and \"system\"";
  }
  const auto view = guide->content;
  const std::vector<SurfaceControl> controls = surfaces.controls("guide");
  const auto isControl = [&](ui::Point point) {
    for (const SurfaceControl& control : controls) {
      if (control.node.frame.contains(point)) {
        return true;
      }
    }
    return false;
  };
  const auto from = placeIn(server, *guide, [&](ui::Point point) {
    return !view->host().movesWindowAt(point) && !isControl(point);
  });
  const auto to =
      placeIn(server, *system, [&](ui::Point point) { return system->dropTarget->accepts(point); });
  if (!from || !to) {
    return from ? "the list cannot be reached" : "there is no icon to be dragged";
  }
  Machine& machine = context.machine();
  constexpr double firstDistance = 6;
  machine.mouse.moveTo(*from);
  machine.runDue();
  machine.mouse.pressButton();
  machine.runDue();
  machine.mouse.moveBy(firstDistance, firstDistance);
  machine.runDue();
  const bool isUnderWay = server.pointer.fileDrag().has_value();
  machine.mouse.moveTo(*to);
  machine.mouse.releaseButton();
  return isUnderWay ? std::nullopt : Complaint("dragging the icon began nothing");
}

}  // namespace

void addInputCommands(CommandTable& table) {
  table.add({"hover", "\"LABEL\" [in SURFACE] [nth N]", hover});
  table.add({"click", "X Y", click});
  table.add({"scroll", "DX DY", scroll});
  table.add({"key", "KEY", key});
  table.add({"drop icon", "", dropIcon});
}

}  // namespace orvane::desk::script
