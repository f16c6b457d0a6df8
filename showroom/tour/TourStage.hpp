// TourStage adds the commands of the tour to the script language: unhurried actions with the mouse,
// captions and pictures.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "desk/canvas/DrawingResources.hpp"
#include "desk/script/Commands.hpp"
#include "showroom/desktop/DesktopPainter.hpp"
#include "showroom/desktop/DesktopScene.hpp"

namespace orvane::showroom {

/// All commands act on the script's machine and move the pointer only by hardware movements. A walk
/// is a path of small ones that takes half a second.
class TourStage {
 public:
  /// Pictures are written to the directory, which must exist.
  explicit TourStage(std::filesystem::path directory) : directory_(std::move(directory)) {}
  TourStage(const TourStage&) = delete;
  TourStage& operator=(const TourStage&) = delete;

  /// Adds the commands, which refer to the stage:
  /// `wait until HH:MM` lets time pass until a time of the first day.
  /// `walk X Y` moves the pointer to a point in global coordinates.
  /// `rest N` moves it to the middle of display N, away from all edges, for a second.
  /// `touch N TIMES S` presses it against the lower edge of display N, every S seconds.
  /// `button down`, `button up` operate the mouse button.
  /// `click control "LABEL" SURFACE`, `click item "ITEM"` and `click icon N` walk to a control, an
  /// item of the open menu or the status item on display N and click it.
  /// `mark zones` shows the trigger zones in all further pictures.
  /// `caption TEXT` prints a numbered caption and writes its picture, such as `01.png`.
  /// `close-up NAME SURFACE` writes a picture of a surface and its surroundings, as NAME.png.
  void addCommands(desk::script::CommandTable& table);

 private:
  using Problem = desk::script::Problem;
  using Context = desk::script::ScriptContext;

  void push(desk::Machine& machine, double dx, double dy);
  void walk(desk::Machine& machine, CGPoint place);
  void clickAt(desk::Machine& machine, CGPoint place);
  void rest(desk::Machine& machine, const CGRect& screen);
  void touchEdge(desk::Machine& machine, const CGRect& screen, std::int64_t times, double every);
  Problem clickControl(desk::Machine& machine, const std::string& label,
                       const std::string& surface);
  Problem clickItem(desk::Machine& machine, const std::string& item);
  void clickIcon(desk::Machine& machine, const CGRect& screen);
  Problem addStep(Context& context, const std::string& caption);
  Problem writeCloseUp(Context& context, const std::string& name, const std::string& surface);
  Problem write(cairo_surface_t* picture, const std::string& name) const;

  std::filesystem::path directory_;
  desk::DrawingResources resources_;
  DesktopPainter painter_{resources_};
  std::optional<MovedBack> movedBack_;
  int stepCount_ = 0;
  bool showsZones_ = false;
};

}  // namespace orvane::showroom
