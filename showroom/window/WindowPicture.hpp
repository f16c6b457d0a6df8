// WindowPicture draws the window's content and knows when it is outdated.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <cairo.h>

#include "desk/canvas/DrawingResources.hpp"
#include "showroom/desktop/DesktopPainter.hpp"
#include "showroom/hardware/HardwarePanelHost.hpp"
#include "showroom/window/DeskSession.hpp"
#include "showroom/window/WindowLayout.hpp"

namespace orvane::showroom {

class WindowPicture {
 public:
  /// The panel must outlive the picture.
  explicit WindowPicture(HardwarePanelHost& panel) : panel_(panel) {}

  /// Whether the session looks different from the last drawing; true before the first.
  [[nodiscard]] bool isOutdated(const DeskSession& session, bool isMouseHeld) const;
  /// Makes the picture outdated, because the drawing area has changed.
  void invalidate() { drawn_.reset(); }
  /// Draws on an ARGB32 image surface with the layout's size.
  void draw(cairo_surface_t* surface, const WindowLayout& layout, const DeskSession& session,
            bool isMouseHeld);

 private:
  /// Everything that the drawing depends on.
  struct Inputs {
    HardwareContent panel;
    std::int64_t panelChanges = 0;
    std::string clock;
    std::vector<double> places;
    std::vector<TriggerZone> zones;
    std::int64_t displayChanges = 0;
    desk::Appearance::Wallpaper wallpaper{};
    std::optional<std::string> statusSymbol;
    long long windowChanges = 0;
    bool operator==(const Inputs&) const = default;
  };
  [[nodiscard]] Inputs inputsOf(const DeskSession& session, bool isMouseHeld) const;

  HardwarePanelHost& panel_;
  desk::DrawingResources resources_;
  DesktopPainter painter_{resources_};
  std::optional<Inputs> drawn_;
};

}  // namespace orvane::showroom
