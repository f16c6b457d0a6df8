// Every movement is one that hardware could make.
#include "showroom/tour/TourStage.hpp"

#include <algorithm>
#include <ostream>
#include <utility>

#include "desk/canvas/PngFile.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/settings/SettingsPages.hpp"
#include "showroom/tour/TourPicture.hpp"

namespace orvane::desk {

namespace {

/// A push that reaches beyond the edge from where the guard puts the pointer back to.
constexpr double pushLength = 24;

}  // namespace

TourStage::TourStage(std::filesystem::path directory, std::ostream& story, std::ostream& complaints)
    : directory_(std::move(directory)),
      story_(story),
      complaints_(complaints),
      application_(scope_.machine()) {
  showroom::addSettingsPages(application_.systemSettings());
}

void TourStage::push(double dx, double dy) {
  Machine& desk = machine();
  const PointerMovement movement = desk.mouse.moveBy(dx, dy);
  desk.runDue();
  movedBack_.reset();
  if (movement.outcome == PointerMovement::Outcome::movedBack) {
    movedBack_ = MovedBack{movement.wanted, movement.reached, 1};
  }
}

void TourStage::walkTo(CGPoint place) {
  constexpr int movements = 25;
  constexpr double pause = 0.02;
  const CGPoint start = machine().pointer.location();
  for (int movement = 1; movement <= movements; ++movement) {
    const CGPoint now = machine().pointer.location();
    const double share = static_cast<double>(movement) / movements;
    push(start.x + (place.x - start.x) * share - now.x,
         start.y + (place.y - start.y) * share - now.y);
    machine().advance(pause);
  }
}

void TourStage::pressLowerEdge(std::uint32_t displayNumber, int times, double every) {
  const auto& displays = machine().displays.all();
  for (std::size_t index = 0; index < displays.size(); ++index) {
    if (displays[index].number != displayNumber) {
      continue;
    }
    const CGRect frame = machine().displays.globalFrames()[index];
    const double x = frame.origin.x + frame.size.width / 2;
    const double bottom = frame.origin.y + frame.size.height;
    constexpr double startAbove = 120;
    walkTo({x, bottom - startAbove});
    walkTo({x, bottom - pushLength});
    for (int time = 0; time < times; ++time) {
      if (time > 0) {
        machine().advance(every);
      }
      push(0, pushLength);
    }
  }
}

CGRect TourStage::onItsScreen(const CGRect& area) {
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
  constexpr double shortly = 0.1;
  walkTo(place);
  machine().advance(shortly);
  hand_.pressButton();
  hand_.releaseButton();
}

void TourStage::click(const std::string& label, const std::string& surface) {
  const Hand::FoundControl found = hand_.find({label, surface});
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
  const auto& displays = machine().displays.all();
  for (std::size_t index = 0; index < displays.size(); ++index) {
    if (displays[index].number == displayNumber) {
      const CGRect icon = StatusBar::itemFrame(machine().displays.globalFrames()[index]);
      clickAt({CGRectGetMidX(icon), CGRectGetMidY(icon)});
    }
  }
}

void TourStage::closeWindow(const std::string& surface) {
  WindowServer& server = WindowServer::current();
  if (const auto window = Surfaces(server).window(surface)) {
    server.performClose(window);
    machine().runDue();
  }
}

void TourStage::pressEscape() {
  hand_.key({ui::Key::escape, {}, {}});
}

void TourStage::dropIcon() {
  WindowServer& server = WindowServer::current();
  const auto system = Surfaces(server).window("system");
  const auto list = application_.systemSettings().listFrame();
  const std::optional<CGPoint> icon = hand_.iconLocation();
  check(icon && list && system != nullptr, "guide and list are there");
  if (isOver()) {
    return;
  }
  // Near the leading edge, where the guide does not cover the list.
  constexpr double intoTheList = 40;
  const CGPoint corner = server.originOf(*system->content).value_or(CGPoint{});
  walkTo(*icon);
  hand_.pressButton();
  walkTo({corner.x + list->x + intoTheList, corner.y + list->y + list->height / 2});
  hand_.releaseButton();
}

void TourStage::moveAway(std::uint32_t displayNumber) {
  const auto& displays = machine().displays.all();
  for (std::size_t index = 0; index < displays.size(); ++index) {
    if (displays[index].number == displayNumber) {
      const CGRect frame = machine().displays.globalFrames()[index];
      constexpr double height = 0.45;
      walkTo({frame.origin.x + frame.size.width / 2, frame.origin.y + frame.size.height * height});
    }
  }
  machine().advance(1);
}

void TourStage::check(bool holds, const std::string& claim) {
  if (!holds && isTrue_) {
    isTrue_ = false;
    complaints_ << "orvane-desk: step " << stepCount_ + 1 << " of the tour is not true: " << claim
                << '\n';
  }
}

void TourStage::tell(const std::string& line) {
  if (isOver()) {
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
  const SurfacePointer picture = renderTourPicture(painter_, resources_, scene, number, line);
  write(picture.get(), number);
  if (!failedToWrite_) {
    story_ << number << "  " << line << std::endl;
  }
}

void TourStage::keep(const std::string& name, const std::string& surface) {
  if (isOver()) {
    return;
  }
  constexpr double margin = 28;
  WindowServer& server = WindowServer::current();
  const auto window = Surfaces(server).window(surface);
  CGRect frame = server.menus.frame();
  if (surface != Surfaces::menu) {
    frame = window != nullptr ? machine().displays.flipped(window->frame) : CGRect{};
  }
  check(frame.size.width > 0, "there is a surface \"" + surface + "\"");
  if (isOver()) {
    return;
  }
  ++keptCount_;
  const CGRect area = CGRectMake(frame.origin.x - margin, frame.origin.y - margin,
                                 frame.size.width + 2 * margin, frame.size.height + 2 * margin);
  const SurfacePointer picture =
      renderCloseUp(painter_, DesktopScene(machine(), application_), onItsScreen(area));
  write(picture.get(), name);
}

void TourStage::write(cairo_surface_t* picture, const std::string& fileName) {
  const std::filesystem::path file = directory_ / (fileName + ".png");
  if (!writePng(picture, file)) {
    failedToWrite_ = true;
    complaints_ << "orvane-desk: cannot write " << file.string() << '\n';
  }
}

std::string TourStage::nameOf(std::uint32_t displayNumber) {
  const Display* const display = machine().displays.find(displayNumber);
  return display == nullptr ? "no display" : display->name;
}

std::string TourStage::dockPlace() {
  return nameOf(machine().dock.displayNumber().value_or(0));
}

bool TourStage::isDockOn(std::uint32_t displayNumber) {
  return machine().dock.displayNumber() == displayNumber;
}

}  // namespace orvane::desk
