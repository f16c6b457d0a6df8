// Each action runs what is due after every event, as time passes during a walk.
#include "showroom/tour/TourStage.hpp"

#include <algorithm>
#include <ostream>
#include <type_traits>

#include "desk/canvas/PngFile.hpp"
#include "desk/hand/Hand.hpp"
#include "desk/hand/InQuotes.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/tour/TourPicture.hpp"

namespace orvane::showroom {

namespace {

using desk::Machine;
using desk::script::Arguments;
using desk::script::Parameter;
using desk::script::ScriptContext;
using desk::script::takes;
using desk::script::text;

/// In points; reaches the edge from the location to which the guard moves the pointer back.
constexpr double pushLength = 24;

CGPoint middleOf(const CGRect& area) {
  return {CGRectGetMidX(area), CGRectGetMidY(area)};
}

/// The part of an area on the screen that contains its middle.
CGRect clippedToScreen(const desk::Displays& displays, const CGRect& area) {
  const auto index = displays.indexContaining(middleOf(area));
  if (!index) {
    return area;
  }
  const CGRect screen = displays.globalFrames()[*index];
  const double left = std::max(area.origin.x, screen.origin.x);
  const double top = std::max(area.origin.y, screen.origin.y);
  return CGRectMake(left, top, std::min(CGRectGetMaxX(area), CGRectGetMaxX(screen)) - left,
                    std::min(CGRectGetMaxY(area), CGRectGetMaxY(screen)) - top);
}

/// The number of a display; its frame in global coordinates.
Parameter<CGRect> screen() {
  return {"N", [](ScriptContext& context, Arguments& arguments) {
            const std::uint32_t number = arguments.displayNumber("N");
            const desk::Displays& displays = context.machine().displays;
            const auto& all = displays.all();
            const auto found = std::ranges::find(all, number, &desk::Display::number);
            if (found == all.end()) {
              arguments.report("there is no display " + std::to_string(number));
              return CGRect{};
            }
            return displays.globalFrames()[static_cast<std::size_t>(found - all.begin())];
          }};
}

/// "HH:MM", in seconds since midnight.
Parameter<double> timeOfDay() {
  return {"HH:MM", [](ScriptContext&, Arguments& arguments) {
            const std::string time = arguments.text("HH:MM");
            const std::size_t colon = std::min(time.find(':'), time.size() - 1);
            const auto hours = arguments.integer("the hour", 0, 23, time.substr(0, colon));
            const auto minutes = arguments.integer("the minute", 0, 59, time.substr(colon + 1));
            return static_cast<double>((hours * 60 + minutes) * 60);
          }};
}

Parameter<std::int64_t> times() {
  return {"TIMES", [](ScriptContext& context, Arguments& arguments) {
            return arguments.integer("TIMES", 1, context.limits.repetitions);
          }};
}

}  // namespace

void TourStage::addCommands(desk::script::CommandTable& table) {
  // A member function as an action.
  const auto bound = [this]<typename Result, typename On, typename... Values>(
                         Result (TourStage::*action)(On&, Values...)) {
    return [this, action](On& on, const std::decay_t<Values>&... values) {
      return (this->*action)(on, values...);
    };
  };
  table.add("wait until", takes(timeOfDay()), [](Machine& machine, double seconds) {
    machine.advance(seconds - static_cast<double>(machine.clock.now()) /
                                  static_cast<double>(desk::Clock::nanosecondsPerSecond));
  });
  table.add("walk", takes(desk::script::point()), bound(&TourStage::walk));
  table.add("rest", takes(screen()), bound(&TourStage::rest));
  table.add("touch", takes(screen(), times(), desk::script::coordinate("S")),
            bound(&TourStage::touchEdge));
  table.add("button down", takes(), [](Machine& machine) { desk::Hand(machine).pressButton(); });
  table.add("button up", takes(), [](Machine& machine) { desk::Hand(machine).releaseButton(); });
  table.add("click control", takes(text("\"LABEL\""), text("SURFACE")),
            bound(&TourStage::clickControl));
  table.add("click item", takes(text("\"ITEM\"")), bound(&TourStage::clickItem));
  table.add("click icon", takes(screen()), bound(&TourStage::clickIcon));
  table.add("mark zones", takes(), [this](Machine&) { showsZones_ = true; });
  table.add("caption", takes(desk::script::restOfLine("TEXT")), bound(&TourStage::addStep));
  table.add("close-up", takes(text("NAME"), text("SURFACE")), bound(&TourStage::writeCloseUp));
}

void TourStage::push(Machine& machine, double dx, double dy) {
  const desk::PointerMovement movement = machine.mouse.moveBy(dx, dy);
  machine.runDue();
  movedBack_.reset();
  if (movement.outcome == desk::PointerMovement::Outcome::movedBack) {
    movedBack_ = MovedBack{movement.wanted, movement.reached, 1};
  }
}

void TourStage::walk(Machine& machine, CGPoint place) {
  constexpr int movements = 25;
  constexpr double pause = 0.02;
  const CGPoint start = machine.pointer.location();
  for (int movement = 1; movement <= movements; ++movement) {
    const CGPoint now = machine.pointer.location();
    const double fraction = static_cast<double>(movement) / movements;
    push(machine, start.x + (place.x - start.x) * fraction - now.x,
         start.y + (place.y - start.y) * fraction - now.y);
    machine.advance(pause);
  }
}

void TourStage::rest(Machine& machine, const CGRect& screen) {
  constexpr double height = 0.45;
  walk(machine, {CGRectGetMidX(screen), screen.origin.y + screen.size.height * height});
  machine.advance(1);
}

void TourStage::touchEdge(Machine& machine, const CGRect& screen, std::int64_t times,
                          double every) {
  constexpr double startAbove = 120;
  for (const double above : {startAbove, pushLength}) {
    walk(machine, {CGRectGetMidX(screen), CGRectGetMaxY(screen) - above});
  }
  for (std::int64_t time = 0; time < times; ++time) {
    machine.advance(time > 0 ? every : 0);
    push(machine, 0, pushLength);
  }
}

void TourStage::clickAt(Machine& machine, CGPoint place) {
  constexpr double pause = 0.1;
  walk(machine, place);
  machine.advance(pause);
  desk::Hand(machine).pressButton();
  desk::Hand(machine).releaseButton();
}

TourStage::Problem TourStage::clickControl(Machine& machine, const std::string& label,
                                           const std::string& surface) {
  const desk::Hand::FoundControl found = desk::Hand(machine).find({label, surface});
  if (found.control) {
    clickAt(machine, middleOf(found.control->frame));
  }
  return found.refusal;
}

TourStage::Problem TourStage::clickItem(Machine& machine, const std::string& item) {
  const auto place = desk::Hand(machine).menuItemCenter(item);
  if (!place) {
    return "there is no item " + desk::inQuotes(item);
  }
  clickAt(machine, *place);
  return std::nullopt;
}

void TourStage::clickIcon(Machine& machine, const CGRect& screen) {
  clickAt(machine, middleOf(desk::StatusBar::itemFrame(screen)));
}

TourStage::Problem TourStage::addStep(Context& context, const std::string& caption) {
  ++stepCount_;
  constexpr int hundred = 100;
  const std::string number = std::to_string(hundred + stepCount_).substr(1);
  DesktopScene scene(context.machine(), context.application());
  scene.showsZones = showsZones_;
  scene.movedBack = movedBack_;
  const desk::SurfacePointer picture =
      renderTourPicture(painter_, resources_, scene, number, caption);
  Problem problem = write(picture.get(), number);
  if (!problem) {
    context.output << number << "  " << caption << std::endl;
  }
  return problem;
}

TourStage::Problem TourStage::writeCloseUp(Context& context, const std::string& name,
                                           const std::string& surface) {
  constexpr double margin = 28;
  const auto frame = desk::Surfaces(desk::WindowServer::current()).frame(surface);
  if (!frame) {
    return "there is no surface " + desk::inQuotes(surface);
  }
  const CGRect area = CGRectMake(frame->origin.x - margin, frame->origin.y - margin,
                                 frame->size.width + 2 * margin, frame->size.height + 2 * margin);
  const desk::SurfacePointer picture =
      renderCloseUp(painter_, DesktopScene(context.machine(), context.application()),
                    clippedToScreen(context.machine().displays, area));
  return write(picture.get(), name);
}

TourStage::Problem TourStage::write(cairo_surface_t* picture, const std::string& name) const {
  const std::filesystem::path file = directory_ / (name + ".png");
  return desk::writePng(picture, file) ? std::nullopt : Problem("cannot write " + file.string());
}

}  // namespace orvane::showroom
