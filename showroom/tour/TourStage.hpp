// TourStage is where the tour plays: a machine, a hand on its mouse, and an album for the pictures.
#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>

#include "desk/application/ApplicationHost.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "desk/hand/Hand.hpp"
#include "desk/machine/MachineScope.hpp"
#include "showroom/desktop/DesktopPainter.hpp"
#include "showroom/desktop/DesktopScene.hpp"

namespace orvane::showroom {

/// What the story claims is checked against the machine before it is told; once a claim does not
/// hold, the stage reports it and tells nothing more.
class TourStage {
 public:
  TourStage(std::filesystem::path directory, std::ostream& story, std::ostream& complaints);

  [[nodiscard]] desk::Machine& machine() { return scope_.machine(); }
  [[nodiscard]] desk::ApplicationHost& application() { return application_; }
  /// The application as it is now.
  [[nodiscard]] OrvaneSnapshot seen() const { return application_.snapshot(); }

  /// The hand moves the pointer to the place in small movements, which take half a second.
  void walkTo(CGPoint place);
  /// The hand walks to the middle of the lower edge of a display and presses against it so often,
  /// `every` seconds apart.
  void pressLowerEdge(std::uint32_t displayNumber, int times, double every);
  /// The hand walks to a control of a surface, by its label, and clicks it.
  void click(const std::string& label, const std::string& surface);
  /// The same with a picker and the item of its menu.
  void pick(const std::string& label, const std::string& item, const std::string& surface);
  /// The hand clicks the application's icon in the menu bar of a display.
  void clickIcon(std::uint32_t displayNumber);
  /// The hand closes a window by its own close button; nothing when there is no such window.
  void closeWindow(const std::string& surface);
  void pressEscape();
  /// The hand drags the icon from the permission guide onto the list in the System Settings.
  void dropIcon();
  /// The hand takes the pointer away from every edge.
  void moveAway(std::uint32_t displayNumber);

  /// States what must be true now; `claim` is said when it is not.
  void check(bool holds, const std::string& claim);
  /// Writes the picture of the present state with the line below it, and prints the line.
  void tell(const std::string& line);
  /// Writes a picture of one surface and a little of what is around it, under a name of its own.
  void keep(const std::string& name, const std::string& surface);
  /// From now on the pictures show the trigger zones.
  void showZones() { showsZones_ = true; }

  [[nodiscard]] std::string nameOf(std::uint32_t displayNumber);
  /// The name of the display that the Dock lives on.
  [[nodiscard]] std::string dockPlace();
  [[nodiscard]] bool isDockOn(std::uint32_t displayNumber);

  [[nodiscard]] bool isTrue() const { return isTrue_; }
  [[nodiscard]] bool failedToWrite() const { return failedToWrite_; }
  [[nodiscard]] int stepCount() const { return stepCount_; }
  [[nodiscard]] int keptCount() const { return keptCount_; }

 private:
  void clickAt(CGPoint place);
  /// The part of an area that is on the screen in which its middle lies.
  [[nodiscard]] CGRect onItsScreen(const CGRect& area);
  void write(cairo_surface_t* picture, const std::string& fileName);
  void push(double dx, double dy);
  [[nodiscard]] bool isOver() const { return !isTrue_ || failedToWrite_; }

  std::filesystem::path directory_;
  std::ostream& story_;
  std::ostream& complaints_;
  desk::MachineScope scope_;
  desk::ApplicationHost application_;
  desk::Hand hand_{machine()};
  desk::DrawingResources resources_;
  DesktopPainter painter_{resources_};
  std::optional<MovedBack> movedBack_;
  int stepCount_ = 0;
  int keptCount_ = 0;
  bool showsZones_ = false;
  bool isTrue_ = true;
  bool failedToWrite_ = false;
};

}  // namespace orvane::showroom
