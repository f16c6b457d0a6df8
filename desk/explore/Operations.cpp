// Finds the control under the pointer or with the focus.
#include "desk/explore/Operations.hpp"

#include <algorithm>
#include <cmath>
#include <optional>
#include <sstream>
#include <utility>

#include "desk/explore/Language.hpp"
#include "desk/explore/Lines.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

std::optional<CGPoint> clickedPoint(const std::string& line) {
  std::istringstream words(line);
  std::string command;
  CGPoint place{};
  return words >> command >> place.x >> place.y && command == "click" ? std::optional(place)
                                                                      : std::nullopt;
}

bool isInMiddle(const SurfaceControl& control, CGPoint place) {
  const CGRect& frame = control.visibleFrame;
  return std::abs(CGRectGetMidX(frame) - place.x) <= 1 &&
         std::abs(CGRectGetMidY(frame) - place.y) <= 1 && CGRectContainsPoint(frame, place);
}

/// The unblocked surface that receives a click; empty without one.
std::string surfaceAt(CGPoint place) {
  WindowServer& server = WindowServer::current();
  if (server.menus.isOpen()) {
    return CGRectContainsPoint(server.menus.frame(), place) ? Surfaces::menu : "";
  }
  const auto window = server.windowAt(place);
  return window != nullptr && !server.modal.blocks(*window) ? Surfaces::nameOf(*window) : "";
}

/// The surface that receives keys; empty without one. A menu has no focus.
std::string surfaceForKeys() {
  WindowServer& server = WindowServer::current();
  const auto window = server.menus.isOpen() ? nullptr : server.focus.keyReceiver();
  return window != nullptr && !server.modal.blocks(*window) ? Surfaces::nameOf(*window) : "";
}

template <typename Predicate>
std::string pressIn(const std::string& surface, const std::string& line, Predicate isOperated) {
  const auto controls = Surfaces(WindowServer::current()).controls(surface);
  const auto found = std::ranges::find_if(controls, [&](const SurfaceControl& control) {
    return control.node.isEnabled && isOperated(control);
  });
  return found == controls.end() ? line
                                 : controlLine("press", surface, controls,
                                               static_cast<std::size_t>(found - controls.begin()));
}

/// The operation that a shortcut stands for, with English labels; the line if it is none.
std::string pressByShortcut(const std::string& line, std::uint64_t modifiers) {
  const std::string surface = surfaceForKeys();
  const bool isPlain = modifiers == 0;
  const bool isCommand = modifiers == kCGEventFlagMaskCommand;
  const Labels& labels = labelsIn(Language::english);
  const auto press = [&](const char* label, const std::string& place) {
    return "press " + quoted(label) + " in " + place;
  };
  if (surface == "alert") {
    return isPlain && line == "key return"   ? press(labels.openPrivacySettings, surface)
           : isPlain && line == "key escape" ? press(labels.notNow, surface)
                                             : line;
  }
  if (surface != "main" && surface != "settings" && surface != "guide") {
    return line;
  }
  const bool isCancelled = isPlain && line == "key escape" && surface != "main";
  if (isCancelled || (isCommand && line == "key w" && surface != "guide")) {
    return press(labels.close, surface);
  }
  if (isCommand && line == "key m") {
    return surface == "main" ? press(labels.minimise, surface) : line;
  }
  if (isCommand && line == "key h") {
    return hidingOperation;
  }
  if (isCommand && line == "key ,") {
    return press(labels.settings, Surfaces::menu);
  }
  return isCommand && line == "key q" ? press(labels.quit, Surfaces::menu) : line;
}

}  // namespace

std::string Operations::operationOf(const std::string& line) const {
  const Machine& machine = WindowServer::current().machine();
  if (line.starts_with("key ") && line != "key space") {
    return pressByShortcut(line, machine.modifierKeys.flags());
  }
  if (machine.modifierKeys.flags() != 0 || machine.mouse.isButtonPressed()) {
    return line;
  }
  if (line == "key space") {
    return pressIn(surfaceForKeys(), line,
                   [](const SurfaceControl& control) { return control.node.isFocused; });
  }
  const auto place = clickedPoint(line);
  const std::string surface = place ? surfaceAt(*place) : "";
  return hasAppeared(surface)
             ? pressIn(surface, line,
                       [&](const SurfaceControl& control) { return isInMiddle(control, *place); })
             : line;
}

bool Operations::hasReachedTarget(const std::string& line) {
  const auto place = clickedPoint(line);
  const CGPoint pointer = WindowServer::current().machine().pointer.location();
  return !place || (place->x == pointer.x && place->y == pointer.y);
}

void Operations::note(const Observation& after) {
  std::map<std::string, Layout> present;
  for (const auto& [surface, tree] : after.trees) {
    Layout layout{{}, after.now};
    for (const ui::SemanticsNode* const element : elementsOf(tree)) {
      layout.frames.push_back(element->frame);
    }
    const auto known = layouts_.find(surface);
    const bool isSame = known != layouts_.end() && known->second.frames == layout.frames;
    present.emplace(surface, isSame ? std::move(known->second) : std::move(layout));
  }
  layouts_ = std::move(present);
}

bool Operations::hasAppeared(const std::string& surface) const {
  const auto layout = layouts_.find(surface);
  return layout != layouts_.end() &&
         layout->second.since < WindowServer::current().machine().clock.now();
}

}  // namespace orvane::desk::explore
