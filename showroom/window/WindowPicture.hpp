// WindowPicture draws the window's content, and only when it differs from what was drawn last.
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
  /// The panel outlives the picture.
  explicit WindowPicture(HardwarePanelHost& panel) : panel_(panel) {}

  /// Whether the session would look different from what was drawn last; true before the first
  /// drawing.
  [[nodiscard]] bool isOutdated(const DeskSession& session, bool isMouseHeld) const;
  /// The next question is answered with true: the drawing area has changed.
  void forget() { drawn_.reset(); }
  /// Draws on an ARGB32 image surface of the layout's size.
  void draw(cairo_surface_t* surface, const WindowLayout& layout, const DeskSession& session,
            bool isMouseHeld);
  [[nodiscard]] std::int64_t drawnCount() const { return drawnCount_; }

 private:
  /// Everything that the picture depends on.
  struct Looks {
    HardwareContent panel;
    std::int64_t panelChanges = 0;
    std::string clock;
    std::vector<double> places;
    std::vector<TriggerZone> zones;
    std::int64_t displayChanges = 0;
    desk::Appearance::Wallpaper wallpaper{};
    std::optional<std::string> statusSymbol;
    long long windowChanges = 0;
    bool operator==(const Looks&) const = default;
  };
  [[nodiscard]] Looks looksOf(const DeskSession& session, bool isMouseHeld) const;

  HardwarePanelHost& panel_;
  desk::DrawingResources resources_;
  DesktopPainter painter_{resources_};
  std::optional<Looks> drawn_;
  std::int64_t drawnCount_ = 0;
};

}  // namespace orvane::showroom
