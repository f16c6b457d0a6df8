// Values of the machine, the application and the window.
#include "showroom/window/WindowDump.hpp"

#include <nlohmann/json.hpp>

#include "desk/script/Inspectables.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::showroom {

namespace {

using desk::script::Json;

Json screensOf(const desk::Machine& machine, const DesktopLayout& layout) {
  Json screens = Json::array();
  for (std::size_t index = 0; index < layout.screens().size(); ++index) {
    const cairo_rectangle_int_t& pixels = layout.screens()[index].pixels;
    screens.push_back({{"display", machine.displays.all()[index].number},
                       {"pixels", {pixels.x, pixels.y, pixels.width, pixels.height}}});
  }
  return screens;
}

Json applicationOf(const DeskSession& session) {
  if (!session.application().isRunning()) {
    return {{"running", false}};
  }
  const OrvaneSnapshot now = session.application().snapshot();
  desk::WindowServer* const server = desk::WindowServer::of(session.machine());
  return {
      {"running", true},
      {"windows", server == nullptr ? Json::array() : Json(desk::Surfaces(*server).names())},
      {"guardRunning", now.guard.isRunning},
      {"zones", now.guard.zones.size()},
      {"blockedCount", now.guard.blockedCount},
      {"isTemporarilyUnlocked", now.isTemporarilyUnlocked},
      {"hidesDockOnAllDisplays", now.hidesDockOnAllDisplays},
      {"selectedDisplay", now.selectedDisplay ? Json(now.selectedDisplay->name) : Json(nullptr)}};
}

}  // namespace

std::string windowDump(const DeskSession& session, const WindowLayout& layout,
                       const WindowFrames& frames) {
  const desk::Machine& machine = session.machine();
  const DesktopLayout desktop = layout.desktopLayout(machine.displays.globalFrames());
  const Json dump{{"dock", desk::script::dockOf(machine)},
                  {"application", applicationOf(session)},
                  {"pointer", desk::script::pointerOf(machine)},
                  {"events", machine.counters.hardwareMovements},
                  {"modifiers", static_cast<std::uint64_t>(machine.modifierKeys.flags())},
                  {"seconds", static_cast<double>(machine.clock.now()) / 1e9},
                  {"drawnFrames", frames.shownMilliseconds.size()},
                  {"framesPerSecond", frames.perSecond},
                  {"shownMilliseconds", frames.shownMilliseconds},
                  {"window",
                   {{"scale", desktop.scale()},
                    {"pixelRatio", layout.pixelRatio},
                    {"screens", screensOf(machine, desktop)}}}};
  constexpr int indentation = 2;
  return dump.dump(indentation) + "\n";
}

}  // namespace orvane::showroom
