// TourStage is the machine of the tour, with user actions on it and the output of captions and
// pictures.
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

/// After the first failed check or unwritable picture, no more steps are written.
class TourStage {
 public:
  TourStage(std::filesystem::path directory, std::ostream& output, std::ostream& errors);

  [[nodiscard]] desk::Machine& machine() { return scope_.machine(); }
  [[nodiscard]] desk::ApplicationHost& application() { return application_; }
  [[nodiscard]] OrvaneSnapshot snapshot() const { return application_.snapshot(); }

  /// Moves the pointer in small movements, which take half a second.
  void walkTo(CGPoint place);
  /// Moves to the middle of the lower edge of a display and presses against it `times` times,
  /// `every` seconds apart.
  void pressLowerEdge(std::uint32_t displayNumber, int times, double every);
  /// Moves to the control of a surface with this label and clicks it.
  void click(const std::string& label, const std::string& surface);
  /// The same with a pop-up button and an item of its menu.
  void pick(const std::string& label, const std::string& item, const std::string& surface);
  /// Clicks the status item in the menu bar of a display.
  void clickIcon(std::uint32_t displayNumber);
  /// Closes a window, if it is open.
  void closeWindow(const std::string& surface);
  void pressEscape();
  /// Drags the icon from the permission guide onto the list in the System Settings.
  void dropIcon();
  /// Moves the pointer to the middle of a display, away from all edges.
  void moveAway(std::uint32_t displayNumber);

  /// Reports `claim` as an error unless it holds.
  void check(bool holds, const std::string& claim);
  /// Writes a picture of the present state with the caption, and prints the caption.
  void addStep(const std::string& caption);
  /// Writes a picture of one surface and its surroundings, as `name`.png.
  void writeCloseUp(const std::string& name, const std::string& surface);
  /// Shows the trigger zones in all further pictures.
  void showZones() { showsZones_ = true; }

  [[nodiscard]] std::string nameOf(std::uint32_t displayNumber);
  /// The name of the Dock's display.
  [[nodiscard]] std::string dockPlace();
  [[nodiscard]] bool isDockOn(std::uint32_t displayNumber);
  [[nodiscard]] bool isOpen(const std::string& surface);

  [[nodiscard]] bool hasPassed() const { return hasPassed_; }
  [[nodiscard]] bool failedToWrite() const { return failedToWrite_; }

 private:
  void clickAt(CGPoint place);
  /// In global coordinates; the display must be attached.
  [[nodiscard]] CGRect screenOf(std::uint32_t displayNumber);
  /// The part of an area on the screen that contains its middle.
  [[nodiscard]] CGRect clippedToScreen(const CGRect& area);
  void write(cairo_surface_t* picture, const std::string& fileName);
  void push(double dx, double dy);
  [[nodiscard]] bool hasFailed() const { return !hasPassed_ || failedToWrite_; }

  std::filesystem::path directory_;
  std::ostream& output_;
  std::ostream& errors_;
  desk::MachineScope scope_;
  desk::ApplicationHost application_;
  desk::Hand hand_{machine()};
  desk::DrawingResources resources_;
  DesktopPainter painter_{resources_};
  std::optional<MovedBack> movedBack_;
  int stepCount_ = 0;
  bool showsZones_ = false;
  bool hasPassed_ = true;
  bool failedToWrite_ = false;
};

}  // namespace orvane::showroom
