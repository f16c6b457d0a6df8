// Every movement is one that hardware could make.
#include "desk/tour/TourStage.hpp"

#include <ostream>
#include <utility>

#include "desk/canvas/PngFile.hpp"
#include "desk/tour/TourPicture.hpp"

namespace orvane::desk {

namespace {

/// A push that reaches beyond the edge from where the guard puts the pointer back to.
constexpr double pushLength = 24;

}  // namespace

TourStage::TourStage(std::filesystem::path directory, std::ostream& story, std::ostream& complaints)
    : directory_(std::move(directory)),
      story_(story),
      complaints_(complaints),
      application_(scope_.machine()) {}

void TourStage::push(double dx, double dy) {
  Machine& desk = machine();
  const CGPoint before = desk.pointer.place();
  const CGPoint wanted = desk.pointer.reachable({before.x + dx, before.y + dy});
  const std::int64_t relocatedBefore = desk.counters.relocatedEvents;
  desk.mouse.moveBy(dx, dy);
  desk.runDue();
  movedBack_.reset();
  if (desk.counters.relocatedEvents != relocatedBefore) {
    movedBack_ = MovedBack{wanted, desk.pointer.place(), 1};
  }
}

void TourStage::walkTo(CGPoint place) {
  constexpr int movements = 25;
  constexpr double pause = 0.02;
  const CGPoint start = machine().pointer.place();
  for (int movement = 1; movement <= movements; ++movement) {
    const CGPoint now = machine().pointer.place();
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
  const std::string number = (stepCount_ < twoDigits ? "0" : "") + std::to_string(stepCount_);
  DesktopScene scene(machine(), application_);
  scene.showsZones = showsZones_;
  scene.movedBack = movedBack_;
  const SurfacePointer picture = renderTourPicture(painter_, resources_, scene, number, line);
  const std::filesystem::path file = directory_ / (number + ".png");
  if (!writePng(picture.get(), file)) {
    failedToWrite_ = true;
    complaints_ << "orvane-desk: cannot write " << file.string() << '\n';
    return;
  }
  story_ << number << "  " << line << std::endl;
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
