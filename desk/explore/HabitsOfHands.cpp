// What hands do: they move the pointer, press against edges, operate what is shown, type.
#include <array>
#include <cmath>
#include <utility>

#include "desk/explore/Habits.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

std::string pointText(CGPoint place) {
  return decimal(place.x) + " " + decimal(place.y);
}

CGPoint anyPlace(Scene& scene, const CGRect& frame) {
  const auto along = [&](double low, double length) {
    return low + static_cast<double>(scene.lots.between(0, static_cast<std::int64_t>(length) - 1));
  };
  return {along(frame.origin.x, frame.size.width), along(frame.origin.y, frame.size.height)};
}

/// Not far from the Dock's edge of a display, and the way out.
std::pair<CGPoint, CGVector> nearEdge(Scene& scene, std::int64_t mostDistance = 40) {
  const CGRect frame = scene.lots.oneOf(scene.machine.displays.globalFrames());
  const auto distance = static_cast<double>(scene.lots.between(0, mostDistance));
  const auto step = static_cast<double>(scene.lots.between(1, 60));
  CGPoint place = anyPlace(scene, frame);
  switch (scene.machine.dock.edge()) {
    case DockEdge::left:
      place.x = frame.origin.x + distance;
      return {place, {-step, 0}};
    case DockEdge::right:
      place.x = frame.origin.x + frame.size.width - 1 - distance;
      return {place, {step, 0}};
    case DockEdge::bottom:
      break;
  }
  place.y = frame.origin.y + frame.size.height - 1 - distance;
  return {place, {0, step}};
}

std::string anyModifiers(Scene& scene) {
  constexpr std::array<const char*, 7> modifiers{
      "option", "control", "shift", "command", "option shift", "control command", "option"};
  return scene.lots.oneOf(modifiers);
}

/// A surface that can be operated, the front ones more often; empty without one.
std::string anySurface(Scene& scene) {
  const std::vector<std::string> names = Surfaces(WindowServer::current()).names();
  if (names.empty()) {
    return {};
  }
  return scene.lots.chance(500) ? names.front() : scene.lots.oneOf(names);
}

/// While a menu or the alert is open, a user can operate nothing else of the application.
bool isFree() {
  const WindowServer& server = WindowServer::current();
  return !server.menus.isOpen() && !server.modal.isRunning();
}

Lines onControl(Scene& scene, const char* command) {
  const std::string surface = anySurface(scene);
  const auto controls = Surfaces(WindowServer::current()).controls(surface);
  if (controls.empty()) {
    return {};
  }
  for (int attempt = 0; attempt < 4; ++attempt) {
    const std::size_t index = scene.lots.below(controls.size());
    const ui::SemanticsNode& node = controls[index].node;
    const bool isEnd = node.label == "Quit" || node.label == "退出";
    if (node.isEnabled && !node.label.empty() && (!isEnd || scene.lots.chance(150))) {
      return {controlLine(command, surface, controls, index)};
    }
  }
  return {};
}

}  // namespace

Lines movePointer(Scene& scene) {
  if (scene.machine.displays.isEmpty()) {
    return {};
  }
  const CGRect frame = scene.lots.oneOf(scene.machine.displays.globalFrames());
  if (scene.lots.chance(300)) {
    return {"push " + decimal(scene.lots.between(-90'000, 90'000)) + " " +
            decimal(scene.lots.between(-90'000, 90'000)) + " times " +
            std::to_string(scene.lots.between(1, 12))};
  }
  return {"move " + pointText(anyPlace(scene, frame))};
}

Lines pressAgainstEdge(Scene& scene) {
  constexpr std::array<const char*, 4> pauses{"", " every 0.02", " every 0.1", " every 0.25"};
  if (scene.machine.displays.isEmpty()) {
    return {};
  }
  const auto [place, way] = nearEdge(scene);
  return {"move " + pointText(place), "push " + decimal(way.dx) + " " + decimal(way.dy) +
                                          " times " + std::to_string(scene.lots.between(1, 12)) +
                                          scene.lots.oneOf(pauses)};
}

Lines runAway(Scene& scene) {
  if (scene.machine.displays.isEmpty()) {
    return {};
  }
  const auto [place, way] = nearEdge(scene, 11);
  if (scene.lots.chance(500)) {
    return {"burst " + std::to_string(scene.lots.between(170, 260)) + " " + pointText(place)};
  }
  return {"move " + pointText(place),
          "push " + decimal(way.dx) + " " + decimal(way.dy) + " times 200 every 0.005"};
}

Lines postEvents(Scene& scene) {
  if (scene.machine.displays.isEmpty()) {
    return {};
  }
  const CGPoint place = nearEdge(scene).first;
  if (scene.lots.chance(300)) {
    return {"event " + pointText(place) + " " + anyModifiers(scene)};
  }
  if (scene.lots.chance(300)) {
    return {"burst " + std::to_string(scene.lots.between(1, 30)) + " " + pointText(place)};
  }
  return {"event " + pointText(place)};
}

Lines holdKeys(Scene& scene) {
  if (scene.machine.modifierKeys.flags() != 0 && scene.lots.chance(700)) {
    return {"release"};
  }
  Lines lines{"hold " + anyModifiers(scene)};
  for (const std::string& line : pressAgainstEdge(scene)) {
    lines.push_back(line);
  }
  if (scene.lots.chance(700)) {
    lines.emplace_back("release");
  }
  return lines;
}

Lines changeCursor(Scene& scene) {
  return {scene.machine.mouse.cursor() == Mouse::Cursor::held ? "cursor free" : "cursor held"};
}

Lines operateMenu(Scene& /*scene*/) {
  const MenuTracker& menus = WindowServer::current().menus;
  return {menus.isOpen() ? "menu close" : "menu open"};
}

Lines pressControl(Scene& scene) {
  return scene.isRunning && isFree() && scene.lots.chance(250) ? Lines{"menu open"}
                                                               : onControl(scene, "press");
}

Lines hoverControl(Scene& scene) {
  return onControl(scene, "hover");
}

Lines clickSomewhere(Scene& scene) {
  const std::string surface = anySurface(scene);
  const auto controls = Surfaces(WindowServer::current()).controls(surface);
  if (!controls.empty() && scene.lots.chance(600)) {
    const CGRect& frame = scene.lots.oneOf(controls).visibleFrame;
    if (frame.size.width >= 1 && frame.size.height >= 1) {
      return {"click " +
              pointText({std::floor(CGRectGetMidX(frame)), std::floor(CGRectGetMidY(frame))})};
    }
  }
  if (scene.machine.displays.isEmpty()) {
    return {};
  }
  return {"click " +
          pointText(anyPlace(scene, scene.lots.oneOf(scene.machine.displays.globalFrames())))};
}

Lines typeKey(Scene& scene) {
  constexpr std::array<const char*, 11> keys{"escape", "return", "space", "tab", "left", "right",
                                             "up",     "down",   "tab",   "p",   "space"};
  return {std::string("key ") + scene.lots.oneOf(keys)};
}

Lines typeShortcut(Scene& scene) {
  constexpr std::array<const char*, 7> keys{"w", "m", ",", "h", ",", "w", "q"};
  return {"hold command", std::string("key ") + scene.lots.oneOf(keys), "release"};
}

Lines scrollWheel(Scene& scene) {
  return {"scroll " + decimal(scene.lots.between(-200'000, 200'000)) + " " +
          decimal(scene.lots.between(-200'000, 200'000))};
}

Lines dragWindow(Scene& scene) {
  const std::string surface = anySurface(scene);
  if (surface.empty() || surface == Surfaces::menu) {
    return {};
  }
  return {"drag " + surface + " " + std::to_string(scene.lots.between(-900, 900)) + " " +
          std::to_string(scene.lots.between(-600, 600))};
}

Lines closeWindow(Scene& scene) {
  const Surfaces surfaces(WindowServer::current());
  // The two with a close button of the system.
  if (surfaces.isOpen("alert")) {
    return {"close alert"};
  }
  if (surfaces.isOpen("system")) {
    return {"close system"};
  }
  return surfaces.isOpen("main") && scene.lots.chance(500) ? Lines{"minimise main"} : Lines{};
}

Lines dropIcon(Scene& /*scene*/) {
  const Surfaces surfaces(WindowServer::current());
  return surfaces.isOpen("guide") && surfaces.isOpen("system") ? Lines{"drop icon"} : Lines{};
}

Lines doOperation(Scene& scene) {
  constexpr std::array<const char*, 19> operations{"toggleSelectedDisplayLock",
                                                   "toggleSelectedDisplayLock",
                                                   "toggleHideDockOnAllDisplays",
                                                   "toggleHideDockOnAllDisplays",
                                                   "toggleLock",
                                                   "refreshDisplays",
                                                   "openAccessibilitySettings",
                                                   "openDesktopAndDockSettings",
                                                   "openPrivacyPolicy",
                                                   "openSupportEmail",
                                                   "setLaunchAtLoginEnabled on",
                                                   "setLaunchAtLoginEnabled off",
                                                   "refreshLaunchAtLoginStatus",
                                                   "appLanguage chinese",
                                                   "appLanguage english",
                                                   "appLanguage system",
                                                   "temporaryUnlockModifier shift",
                                                   "temporaryUnlockModifier command",
                                                   "temporaryUnlockModifier option"};
  if (!scene.isRunning || !isFree()) {
    return {};
  }
  if (!scene.machine.displays.isEmpty() && scene.lots.chance(200)) {
    const Display& display = scene.lots.oneOf(scene.machine.displays.all());
    return {"do selectDisplay " + quoted(display.uuid.value_or(std::to_string(display.number)))};
  }
  return {std::string("do ") + scene.lots.oneOf(operations)};
}

Lines followGuide(Scene& scene) {
  const Surfaces surfaces(WindowServer::current());
  if (surfaces.isOpen("alert")) {
    if (scene.machine.eventTaps.isAnyEnabled() && scene.lots.chance(600)) {
      return runAway(scene);
    }
    if (scene.lots.chance(300)) {
      return {"trust on"};
    }
    constexpr std::size_t notNow = 0;
    constexpr std::size_t openSettings = 1;
    const auto controls = surfaces.controls("alert");
    return {controlLine("press", "alert", controls, scene.lots.chance(800) ? openSettings : notNow),
            scene.lots.chance(700) ? "advance 2" : "advance 0.7"};
  }
  if (!surfaces.isOpen("guide")) {
    return {};
  }
  constexpr std::array<const char*, 10> ways{"advance 10.5",
                                             "advance 1",
                                             "trust on",
                                             "press \"Orvane\" in system",
                                             "drop icon",
                                             "trust off",
                                             "do appLanguage chinese",
                                             "do appLanguage english",
                                             "do toggleHideDockOnAllDisplays",
                                             "do toggleSelectedDisplayLock"};
  const std::string way = scene.lots.oneOf(ways);
  return way.starts_with("do ") && !isFree() ? Lines{"menu close"} : Lines{way};
}

}  // namespace orvane::desk::explore
