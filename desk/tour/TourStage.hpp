// TourStage is where the tour plays: a machine, a hand on its mouse, and an album for the pictures.
#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>

#include "desk/application/ApplicationHost.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "desk/desktop/DesktopPainter.hpp"
#include "desk/desktop/DesktopScene.hpp"
#include "desk/machine/MachineScope.hpp"

namespace orvane::desk {

/// What the story claims is checked against the machine before it is told; once a claim does not
/// hold, the stage reports it and tells nothing more.
class TourStage {
 public:
  TourStage(std::filesystem::path directory, std::ostream& story, std::ostream& complaints);

  [[nodiscard]] Machine& machine() { return scope_.machine(); }
  [[nodiscard]] ApplicationHost& application() { return application_; }
  [[nodiscard]] OrvaneModel& model() { return application_.model(); }

  /// The hand moves the pointer to the place in small movements, which take half a second.
  void walkTo(CGPoint place);
  /// The hand walks to the middle of the lower edge of a display and presses against it so often,
  /// `every` seconds apart.
  void pressLowerEdge(std::uint32_t displayNumber, int times, double every);
  /// The hand takes the pointer away from every edge.
  void moveAway(std::uint32_t displayNumber);

  /// States what must be true now; `claim` is said when it is not.
  void check(bool holds, const std::string& claim);
  /// Writes the picture of the present state with the line below it, and prints the line.
  void tell(const std::string& line);
  /// From now on the pictures show the trigger zones.
  void showZones() { showsZones_ = true; }

  [[nodiscard]] std::string nameOf(std::uint32_t displayNumber);
  /// The name of the display that the Dock lives on.
  [[nodiscard]] std::string dockPlace();
  [[nodiscard]] bool isDockOn(std::uint32_t displayNumber);

  [[nodiscard]] bool isTrue() const { return isTrue_; }
  [[nodiscard]] bool failedToWrite() const { return failedToWrite_; }
  [[nodiscard]] int stepCount() const { return stepCount_; }

 private:
  void push(double dx, double dy);
  [[nodiscard]] bool isOver() const { return !isTrue_ || failedToWrite_; }

  std::filesystem::path directory_;
  std::ostream& story_;
  std::ostream& complaints_;
  MachineScope scope_;
  ApplicationHost application_;
  DrawingResources resources_;
  DesktopPainter painter_{resources_};
  std::optional<MovedBack> movedBack_;
  int stepCount_ = 0;
  bool showsZones_ = false;
  bool isTrue_ = true;
  bool failedToWrite_ = false;
};

}  // namespace orvane::desk
