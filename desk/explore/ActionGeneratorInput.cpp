// Actions with the pointer, the keyboard, controls, menus and windows.
#include <array>
#include <cmath>
#include <utility>

#include "desk/explore/ActionGenerator.hpp"
#include "desk/explore/Language.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

std::string pointText(CGPoint place) {
  return decimal(place.x) + " " + decimal(place.y);
}

CGPoint anyPointIn(ActionContext& context, const CGRect& frame) {
  const auto along = [&](double low, double length) {
    return low +
           static_cast<double>(context.random.between(0, static_cast<std::int64_t>(length) - 1));
  };
  return {along(frame.origin.x, frame.size.width), along(frame.origin.y, frame.size.height)};
}

/// A point near the Dock's edge of a display, and a movement across that edge.
std::pair<CGPoint, CGVector> nearEdge(ActionContext& context, std::int64_t maximumDistance = 40) {
  const CGRect frame = context.random.oneOf(context.machine.displays.globalFrames());
  const auto distance = static_cast<double>(context.random.between(0, maximumDistance));
  const auto step = static_cast<double>(context.random.between(1, 60));
  CGPoint place = anyPointIn(context, frame);
  switch (context.machine.dock.edge()) {
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

std::string anyModifiers(ActionContext& context) {
  constexpr std::array<const char*, 7> modifiers{
      "option", "control", "shift", "command", "option shift", "control command", "option"};
  return context.random.oneOf(modifiers);
}

/// The frontmost surface half of the time; empty if there is none.
std::string anySurface(ActionContext& context) {
  const std::vector<std::string> names = Surfaces(WindowServer::current()).names();
  if (names.empty()) {
    return {};
  }
  return context.random.chance(500) ? names.front() : context.random.oneOf(names);
}

/// Whether neither a menu nor a modal session keeps the user from other windows.
bool areWindowsFree() {
  const WindowServer& server = WindowServer::current();
  return !server.menus.isOpen() && !server.modal.isRunning();
}

Lines controlAction(ActionContext& context, const char* command) {
  const std::string surface = anySurface(context);
  const auto controls = Surfaces(WindowServer::current()).controls(surface);
  if (controls.empty()) {
    return {};
  }
  for (int attempt = 0; attempt < 4; ++attempt) {
    const std::size_t index = context.random.below(controls.size());
    const ui::SemanticsNode& node = controls[index].node;
    const bool isQuit = node.label == "Quit" || node.label == "退出";
    if (node.isEnabled && !node.label.empty() && (!isQuit || context.random.chance(150))) {
      return {controlLine(command, surface, controls, index)};
    }
  }
  return {};
}

}  // namespace

Lines movePointer(ActionContext& context) {
  if (context.machine.displays.isEmpty()) {
    return {};
  }
  const CGRect frame = context.random.oneOf(context.machine.displays.globalFrames());
  if (context.random.chance(300)) {
    return {"push " + decimal(context.random.between(-90'000, 90'000)) + " " +
            decimal(context.random.between(-90'000, 90'000)) + " times " +
            std::to_string(context.random.between(1, 12))};
  }
  return {"move " + pointText(anyPointIn(context, frame))};
}

Lines pressAgainstEdge(ActionContext& context) {
  constexpr std::array<const char*, 4> pauses{"", " every 0.02", " every 0.1", " every 0.25"};
  if (context.machine.displays.isEmpty()) {
    return {};
  }
  const auto [place, push] = nearEdge(context);
  return {"move " + pointText(place),
          "push " + decimal(push.dx) + " " + decimal(push.dy) + " times " +
              std::to_string(context.random.between(1, 12)) + context.random.oneOf(pauses)};
}

Lines runAway(ActionContext& context) {
  if (context.machine.displays.isEmpty()) {
    return {};
  }
  const auto [place, push] = nearEdge(context, 11);
  if (context.random.chance(500)) {
    return {"burst " + std::to_string(context.random.between(170, 260)) + " " + pointText(place)};
  }
  // The second takes almost two seconds for 180 blocks.
  constexpr std::array<const char*, 2> paces{" times 200 every 0.005", " times 200 every 0.01"};
  return {"move " + pointText(place),
          "push " + decimal(push.dx) + " " + decimal(push.dy) + context.random.oneOf(paces)};
}

Lines postEvents(ActionContext& context) {
  if (context.machine.displays.isEmpty()) {
    return {};
  }
  const CGPoint place = nearEdge(context).first;
  if (context.random.chance(300)) {
    return {"event " + pointText(place) + " " + anyModifiers(context)};
  }
  if (context.random.chance(300)) {
    return {"burst " + std::to_string(context.random.between(1, 30)) + " " + pointText(place)};
  }
  return {"event " + pointText(place)};
}

Lines holdKeys(ActionContext& context) {
  if (context.machine.modifierKeys.flags() != 0 && context.random.chance(700)) {
    return {"release"};
  }
  Lines lines{"hold " + anyModifiers(context)};
  for (const std::string& line : pressAgainstEdge(context)) {
    lines.push_back(line);
  }
  if (context.random.chance(700)) {
    lines.emplace_back("release");
  }
  return lines;
}

Lines changeCursor(ActionContext& context) {
  return {context.machine.mouse.cursor() == Mouse::Cursor::held ? "cursor free" : "cursor held"};
}

Lines operateMenu(ActionContext& /*context*/) {
  const MenuTracker& menus = WindowServer::current().menus;
  return {menus.isOpen() ? "menu close" : "menu open"};
}

Lines pressControl(ActionContext& context) {
  return context.isRunning && areWindowsFree() && context.random.chance(250)
             ? Lines{"menu open"}
             : controlAction(context, "press");
}

Lines pickItem(ActionContext& context) {
  constexpr std::array<const char*, 3> choices{"system", "english", "chinese"};
  constexpr std::array<const char*, 4> keys{"option", "control", "shift", "command"};
  const Surfaces surfaces(WindowServer::current());
  if (!surfaces.isOpen("settings")) {
    return {};
  }
  for (const SurfaceControl& control : surfaces.controls("settings")) {
    for (const Language language : {Language::english, Language::chinese}) {
      const std::string pick = "pick " + quoted(control.node.label) + " ";
      if (control.node.label == labelsIn(language).language && context.random.chance(500)) {
        return {pick + quoted(languageItem(context.random.oneOf(choices), language)) +
                " in settings"};
      }
      if (control.node.label == labelsIn(language).unlockShortcut) {
        return {pick + quoted(shortcutItem(context.random.oneOf(keys))) + " in settings"};
      }
    }
  }
  return {};
}

Lines hoverControl(ActionContext& context) {
  return controlAction(context, "hover");
}

Lines clickSomewhere(ActionContext& context) {
  const std::string surface = anySurface(context);
  const auto controls = Surfaces(WindowServer::current()).controls(surface);
  if (!controls.empty() && context.random.chance(600)) {
    const CGRect& frame = context.random.oneOf(controls).visibleFrame;
    if (frame.size.width >= 1 && frame.size.height >= 1) {
      return {"click " +
              pointText({std::floor(CGRectGetMidX(frame)), std::floor(CGRectGetMidY(frame))})};
    }
  }
  if (context.machine.displays.isEmpty()) {
    return {};
  }
  return {"click " + pointText(anyPointIn(
                         context, context.random.oneOf(context.machine.displays.globalFrames())))};
}

Lines typeKey(ActionContext& context) {
  constexpr std::array<const char*, 11> keys{"escape", "return", "space", "tab", "left", "right",
                                             "up",     "down",   "tab",   "p",   "space"};
  return {std::string("key ") + context.random.oneOf(keys)};
}

Lines typeShortcut(ActionContext& context) {
  constexpr std::array<const char*, 7> keys{"w", "m", ",", "h", ",", "w", "q"};
  return {"hold command", std::string("key ") + context.random.oneOf(keys), "release"};
}

Lines scrollWheel(ActionContext& context) {
  return {"scroll " + decimal(context.random.between(-200'000, 200'000)) + " " +
          decimal(context.random.between(-200'000, 200'000))};
}

Lines dragWindow(ActionContext& context) {
  const std::string surface = anySurface(context);
  if (surface.empty() || surface == Surfaces::menu) {
    return {};
  }
  return {"drag " + surface + " " + std::to_string(context.random.between(-900, 900)) + " " +
          std::to_string(context.random.between(-600, 600))};
}

Lines closeWindow(ActionContext& context) {
  const Surfaces surfaces(WindowServer::current());
  // The windows with a close button of the system.
  if (surfaces.isOpen("alert")) {
    return {"close alert"};
  }
  if (surfaces.isOpen("system")) {
    return {"close system"};
  }
  return surfaces.isOpen("main") && context.random.chance(500) ? Lines{"minimise main"} : Lines{};
}

Lines dropIcon(ActionContext& /*context*/) {
  const Surfaces surfaces(WindowServer::current());
  return surfaces.isOpen("guide") && surfaces.isOpen("system") ? Lines{"drop icon"} : Lines{};
}

Lines doOperation(ActionContext& context) {
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
  if (!context.isRunning || !areWindowsFree()) {
    return {};
  }
  if (!context.machine.displays.isEmpty() && context.random.chance(200)) {
    const Display& display = context.random.oneOf(context.machine.displays.all());
    return {"do selectDisplay " + quoted(display.uuid.value_or(std::to_string(display.number)))};
  }
  return {std::string("do ") + context.random.oneOf(operations)};
}

namespace {

/// While the guide is open, the user no longer needs it, or requests the permission again and
/// grants it before the guide appears a second time.
Lines requestAgain(ActionContext& context) {
  constexpr const char* pin = "do toggleSelectedDisplayLock";
  if (context.random.chance(500)) {
    return {"trust on", pin, pin, "advance 2"};
  }
  return {pin,         "key return",  "advance 0.7", "trust on",
          "advance 1", "advance 0.5", "advance 0.5", "advance 0.5"};
}

}  // namespace

Lines followGuide(ActionContext& context) {
  const Surfaces surfaces(WindowServer::current());
  if (surfaces.isOpen("alert")) {
    if (context.machine.eventTaps.isAnyEnabled() && context.random.chance(600)) {
      return runAway(context);
    }
    if (context.random.chance(300)) {
      return {"trust on"};
    }
    constexpr std::size_t notNow = 0;
    constexpr std::size_t openSettings = 1;
    const auto controls = surfaces.controls("alert");
    return {
        controlLine("press", "alert", controls, context.random.chance(800) ? openSettings : notNow),
        context.random.chance(700) ? "advance 2" : "advance 0.7"};
  }
  if (!surfaces.isOpen("guide")) {
    return {};
  }
  if (areWindowsFree() && context.random.chance(250)) {
    return requestAgain(context);
  }
  constexpr std::array<const char*, 10> steps{"advance 10.5",
                                              "advance 1",
                                              "trust on",
                                              "press \"Orvane\" in system",
                                              "drop icon",
                                              "trust off",
                                              "do appLanguage chinese",
                                              "do appLanguage english",
                                              "do toggleHideDockOnAllDisplays",
                                              "do toggleSelectedDisplayLock"};
  const std::string step = context.random.oneOf(steps);
  return step.starts_with("do ") && !areWindowsFree() ? Lines{"menu close"} : Lines{step};
}

}  // namespace orvane::desk::explore
