// Every command speaks with the machine or with the application's model, as a user's hand would.
#include "desk/window/WindowCommands.hpp"

#include <algorithm>
#include <optional>

#include "desk/desktop/StandardDisplays.hpp"

namespace orvane::desk {

namespace {

const OrvaneModel* runningModel(const DeskSession& session) {
  return session.application().isRunning() ? &session.application().model() : nullptr;
}

bool isPinned(const DeskSession& session) {
  const OrvaneModel* const model = runningModel(session);
  return model != nullptr && model->isGuardRunning() && !model->hidesDockOnAllDisplays().value();
}

bool isPrevented(const DeskSession& session) {
  const OrvaneModel* const model = runningModel(session);
  return model != nullptr && model->isGuardRunning() && model->hidesDockOnAllDisplays().value();
}

std::string pinState(const DeskSession& session) {
  if (!isPinned(session)) {
    return session.machine().permission.isTrusted() ? "Off" : "Needs permission";
  }
  // By the desk's own name of the display, which is written on its monitor.
  const auto target = session.application().model().selectedDisplay();
  const auto& displays = session.machine().displays.all();
  const auto display = std::find_if(displays.begin(), displays.end(), [&](const auto& other) {
    return target && CGRectEqualToRect(other.frame, target->frame);
  });
  return display == displays.end() ? "Not attached" : display->name;
}

void pinHere(DeskSession& session) {
  const auto index = session.machine().pointer.displayIndex();
  if (!session.application().isRunning() || !index) {
    return;
  }
  OrvaneModel& model = session.application().model();
  model.refreshDisplays();
  const std::vector<DisplaySnapshot>& displays = model.displays().value();
  if (*index >= displays.size()) {
    return;
  }
  const std::string id = displays[*index].id;
  const bool isPinnedHere = isPinned(session) && model.selectedDisplayID().value() == id;
  // Choosing another display moves a pin that is on; without one it only names the target.
  model.selectDisplay(id);
  if (isPinnedHere || !isPinned(session)) {
    model.toggleSelectedDisplayLock();
  }
}

std::string preventState(const DeskSession& session) {
  if (isPrevented(session)) {
    return "On";
  }
  return session.machine().permission.isTrusted() ? "Off" : "Needs permission";
}

void togglePrevent(DeskSession& session) {
  if (session.application().isRunning()) {
    session.application().model().toggleHideDockOnAllDisplays();
  }
}

std::string displayCountText(const DeskSession& session) {
  return std::to_string(session.machine().displays.count()) + " attached";
}

void attachDisplay(DeskSession& session) {
  attachNextStandardDisplay(session.machine());
}

std::string displayUnderPointer(const DeskSession& session) {
  const Display* const display = session.machine().displays.find(session.pointerDisplayNumber());
  return display == nullptr ? "None" : display->name;
}

void detachDisplay(DeskSession& session) {
  // The last one stays: a desk without a display could not be used any more.
  if (session.machine().displays.count() > 1) {
    // It is attached, since the pointer is on it.
    (void)session.machine().displays.detach(session.pointerDisplayNumber());
  }
}

std::string edgeText(const DeskSession& session) {
  switch (session.machine().dock.edge()) {
    case DockEdge::bottom:
      return "Bottom";
    case DockEdge::left:
      return "Left";
    case DockEdge::right:
      return "Right";
  }
  return {};
}

void turnEdge(DeskSession& session) {
  const DockEdge edge = session.machine().dock.edge();
  const std::string next = edge == DockEdge::bottom ? "left"
                           : edge == DockEdge::left ? "right"
                                                    : "bottom";
  session.machine().preferences.set({Dock::preferencesDomain}, Dock::orientationKey, next);
}

std::string onOff(bool isOn) {
  return isOn ? "On" : "Off";
}

bool autoHides(const DeskSession& session) {
  return session.machine().dock.autoHides();
}

void toggleAutoHide(DeskSession& session) {
  session.machine().preferences.set({Dock::preferencesDomain}, Dock::autoHideKey,
                                    !autoHides(session));
}

bool isTrusted(const DeskSession& session) {
  return session.machine().permission.isTrusted();
}

void toggleTrust(DeskSession& session) {
  session.machine().permission.setTrusted(!isTrusted(session));
}

bool showsZones(const DeskSession& session) {
  return session.showsZones();
}

bool isDark(const DeskSession& session) {
  return session.machine().appearance.isDark;
}

void toggleDark(DeskSession& session) {
  session.machine().appearance.isDark = !isDark(session);
}

std::string wallpaperText(const DeskSession& session) {
  switch (session.machine().appearance.wallpaper) {
    case Appearance::Wallpaper::standard:
      return "Landscape";
    case Appearance::Wallpaper::white:
      return "White";
    case Appearance::Wallpaper::black:
      return "Black";
    case Appearance::Wallpaper::busy:
      return "Busy";
  }
  return {};
}

void turnWallpaper(DeskSession& session) {
  using Wallpaper = Appearance::Wallpaper;
  Wallpaper& wallpaper = session.machine().appearance.wallpaper;
  wallpaper = wallpaper == Wallpaper::standard ? Wallpaper::white
              : wallpaper == Wallpaper::white  ? Wallpaper::black
              : wallpaper == Wallpaper::black  ? Wallpaper::busy
                                               : Wallpaper::standard;
}

bool never(const DeskSession&) {
  return false;
}

}  // namespace

const std::vector<WindowCommand>& windowCommands() {
  static const std::vector<WindowCommand> commands{
      {'P', "Pin Dock here", pinState, isPinned, pinHere},
      {'H', "Prevent pop-up", preventState, isPrevented, togglePrevent},
      {'Z', "Trigger zones", [](const DeskSession& session) { return onOff(showsZones(session)); },
       showsZones, [](DeskSession& session) { session.setShowsZones(!session.showsZones()); }},
      {'T', "Accessibility",
       [](const DeskSession& session) -> std::string {
         return isTrusted(session) ? "Granted" : "Missing";
       },
       isTrusted, toggleTrust},
      {'L', "Appearance",
       [](const DeskSession& session) -> std::string { return isDark(session) ? "Dark" : "Light"; },
       never, toggleDark},
      {'A', "Attach a display", displayCountText, never, attachDisplay},
      {'D', "Detach this display", displayUnderPointer, never, detachDisplay},
      {'E', "Dock's edge", edgeText, never, turnEdge},
      {'U', "Dock hides itself",
       [](const DeskSession& session) { return onOff(autoHides(session)); }, autoHides,
       toggleAutoHide},
      {'W', "Wallpaper", wallpaperText, never, turnWallpaper},
  };
  return commands;
}

bool runWindowCommand(DeskSession& session, char key) {
  constexpr char toCapital = 'a' - 'A';
  const char capital = key >= 'a' && key <= 'z' ? static_cast<char>(key - toCapital) : key;
  const auto& commands = windowCommands();
  const auto command = std::find_if(commands.begin(), commands.end(),
                                    [&](const auto& other) { return other.key == capital; });
  if (command == commands.end()) {
    return false;
  }
  command->run(session);
  session.machine().runDue();
  return true;
}

}  // namespace orvane::desk
