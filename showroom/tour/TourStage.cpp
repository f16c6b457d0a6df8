// The pointer moves only by hardware movements.
#include "showroom/tour/TourStage.hpp"

#include <algorithm>
#include <ostream>
#include <utility>

#include "Orvane/base/Require.hpp"
#include "desk/canvas/PngFile.hpp"
#include "desk/hand/InQuotes.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/settings/SettingsPages.hpp"
#include "showroom/tour/TourPicture.hpp"

namespace orvane::showroom {

namespace {

/// In points; reaches the edge from the location to which the guard moves the pointer back.
constexpr double pushLength = 24;

}  // namespace

TourStage::TourStage(std::filesystem::path directory, std::ostream& output, std::ostream& errors)
    : directory_(std::move(directory)),
      output_(output),
      errors_(errors),
      application_(scope_.machine()) {
  addSettingsPages(application_.systemSettings());
}

void TourStage::push(double dx, double dy) {
  desk::Machine& desk = machine();
  const desk::PointerMovement movement = desk.mouse.moveBy(dx, dy);
  desk.runDue();
  movedBack_.reset();
  if (movement.outcome == desk::PointerMovement::Outcome::movedBack) {
    movedBack_ = MovedBack{movement.wanted, movement.reached, 1};
  }
}

void TourStage::walkTo(CGPoint place) {
  constexpr int movements = 25;
  constexpr double pause = 0.02;
  const CGPoint start = machine().pointer.location();
  for (int movement = 1; movement <= movements; ++movement) {
    const CGPoint now = machine().pointer.location();
    const double fraction = static_cast<double>(movement) / movements;
    push(start.x + (place.x - start.x) * fraction - now.x,
         start.y + (place.y - start.y) * fraction - now.y);
    machine().advance(pause);
  }
}

void TourStage::pressLowerEdge(std::uint32_t displayNumber, int times, double every) {
  const CGRect screen = screenOf(displayNumber);
  constexpr double startAbove = 120;
  walkTo({CGRectGetMidX(screen), CGRectGetMaxY(screen) - startAbove});
  walkTo({CGRectGetMidX(screen), CGRectGetMaxY(screen) - pushLength});
  for (int time = 0; time < times; ++time) {
    if (time > 0) {
      machine().advance(every);
    }
    push(0, pushLength);
  }
}

CGRect TourStage::screenOf(std::uint32_t displayNumber) {
  const auto& displays = machine().displays.all();
  const auto found = std::ranges::find(displays, displayNumber, &desk::Display::number);
  require(found != displays.end(), "the tour needs a display that is not attached");
  return machine().displays.globalFrames()[static_cast<std::size_t>(found - displays.begin())];
}

CGRect TourStage::clippedToScreen(const CGRect& area) {
  const CGPoint middle{CGRectGetMidX(area), CGRectGetMidY(area)};
  const auto index = machine().displays.indexContaining(middle);
  if (!index) {
    return area;
  }
  const CGRect screen = machine().displays.globalFrames()[*index];
  const double left = std::max(area.origin.x, screen.origin.x);
  const double top = std::max(area.origin.y, screen.origin.y);
  return CGRectMake(left, top, std::min(CGRectGetMaxX(area), CGRectGetMaxX(screen)) - left,
                    std::min(CGRectGetMaxY(area), CGRectGetMaxY(screen)) - top);
}

void TourStage::clickAt(CGPoint place) {
  constexpr double pause = 0.1;
  walkTo(place);
  machine().advance(pause);
  hand_.pressButton();
  hand_.releaseButton();
}

void TourStage::click(const std::string& label, const std::string& surface) {
  const desk::Hand::FoundControl found = hand_.find({label, surface});
  check(found.control.has_value(), "there is a control \"" + label + "\" in " + surface);
  if (found.control) {
    const CGRect& frame = found.control->frame;
    clickAt({CGRectGetMidX(frame), CGRectGetMidY(frame)});
  }
}

void TourStage::pick(const std::string& label, const std::string& item,
                     const std::string& surface) {
  click(label, surface);
  const std::optional<CGPoint> place = hand_.menuItemCenter(item);
  check(place.has_value(), "there is an item \"" + item + "\" of " + label);
  if (place) {
    clickAt(*place);
  }
}

void TourStage::clickIcon(std::uint32_t displayNumber) {
  const CGRect icon = desk::StatusBar::itemFrame(screenOf(displayNumber));
  clickAt({CGRectGetMidX(icon), CGRectGetMidY(icon)});
}

void TourStage::closeWindow(const std::string& surface) {
  desk::WindowServer& server = desk::WindowServer::current();
  if (const auto window = desk::Surfaces(server).window(surface)) {
    server.performClose(window);
    machine().runDue();
  }
}

void TourStage::pressEscape() {
  hand_.key({.key = ui::Key::escape});
}

void TourStage::dropIcon() {
  desk::WindowServer& server = desk::WindowServer::current();
  const auto system = desk::Surfaces(server).window("system");
  const auto list = application_.systemSettings().listFrame();
  const std::optional<CGPoint> icon = hand_.iconLocation();
  check(icon && list && system != nullptr, "guide and list are there");
  if (hasFailed()) {
    return;
  }
  // Near the leading edge, where the guide does not cover the list.
  constexpr double listInset = 40;
  const CGPoint corner = server.originOf(*system->content).value_or(CGPoint{});
  walkTo(*icon);
  hand_.pressButton();
  walkTo({corner.x + list->x + listInset, corner.y + list->y + list->height / 2});
  hand_.releaseButton();
}

void TourStage::moveAway(std::uint32_t displayNumber) {
  const CGRect screen = screenOf(displayNumber);
  constexpr double height = 0.45;
  walkTo({CGRectGetMidX(screen), screen.origin.y + screen.size.height * height});
  machine().advance(1);
}

void TourStage::check(bool holds, const std::string& claim) {
  if (!holds && hasPassed_) {
    hasPassed_ = false;
    errors_ << "orvane-desk: step " << stepCount_ + 1 << " of the tour is not true: " << claim
            << '\n';
  }
}

void TourStage::addStep(const std::string& caption) {
  if (hasFailed()) {
    return;
  }
  ++stepCount_;
  constexpr int twoDigits = 10;
  std::string number = std::to_string(stepCount_);
  if (stepCount_ < twoDigits) {
    number.insert(number.begin(), '0');
  }
  DesktopScene scene(machine(), application_);
  scene.showsZones = showsZones_;
  scene.movedBack = movedBack_;
  const desk::SurfacePointer picture =
      renderTourPicture(painter_, resources_, scene, number, caption);
  write(picture.get(), number);
  if (!failedToWrite_) {
    output_ << number << "  " << caption << std::endl;
  }
}

void TourStage::writeCloseUp(const std::string& name, const std::string& surface) {
  if (hasFailed()) {
    return;
  }
  constexpr double margin = 28;
  const auto frame = desk::Surfaces(desk::WindowServer::current()).frame(surface);
  check(frame.has_value(), "there is a surface " + desk::inQuotes(surface));
  if (hasFailed()) {
    return;
  }
  const CGRect area = CGRectMake(frame->origin.x - margin, frame->origin.y - margin,
                                 frame->size.width + 2 * margin, frame->size.height + 2 * margin);
  const desk::SurfacePointer picture =
      renderCloseUp(painter_, DesktopScene(machine(), application_), clippedToScreen(area));
  write(picture.get(), name);
}

void TourStage::write(cairo_surface_t* picture, const std::string& fileName) {
  const std::filesystem::path file = directory_ / (fileName + ".png");
  if (!desk::writePng(picture, file)) {
    failedToWrite_ = true;
    errors_ << "orvane-desk: cannot write " << file.string() << '\n';
  }
}

std::string TourStage::nameOf(std::uint32_t displayNumber) {
  const desk::Display* const display = machine().displays.find(displayNumber);
  return display == nullptr ? "no display" : display->name;
}

std::string TourStage::dockPlace() {
  return nameOf(machine().dock.displayNumber().value_or(0));
}

bool TourStage::isDockOn(std::uint32_t displayNumber) {
  return machine().dock.displayNumber() == displayNumber;
}

bool TourStage::isOpen(const std::string& surface) {
  return desk::Surfaces(desk::WindowServer::current()).isOpen(surface);
}

}  // namespace orvane::showroom
