// HardwarePanelHost shows the hardware panel to whoever has pixels and a pointer, a window or a
// test.
#pragma once

#include <cstdint>
#include <optional>

#include "Orvane/ui/host/ViewHost.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "desk/canvas/PangoTextMeasurer.hpp"
#include "showroom/hardware/HardwarePanel.hpp"

namespace orvane::showroom {

/// Points are counted from the top left of what is seen of the panel; one that is higher than its
/// place is scrolled. The hardware outlives it.
class HardwarePanelHost {
 public:
  explicit HardwarePanelHost(Hardware& hardware);
  HardwarePanelHost(const HardwarePanelHost&) = delete;
  HardwarePanelHost& operator=(const HardwarePanelHost&) = delete;

  /// How large its place is.
  void setSize(ui::Size size);
  /// Brings the panel to this content and the machine's present instant.
  void show(const HardwareContent& content);
  [[nodiscard]] const HardwareContent& content() const { return content_; }
  /// How often it asked to be drawn anew, besides by another content.
  [[nodiscard]] std::int64_t changeCount() const { return changeCount_; }

  /// Paints what was shown last, with the top left of its place there.
  void paint(desk::CairoCanvas& canvas, ui::Point corner);

  void pointerMoved(ui::Point point);
  void pointerExited();
  void pointerDown(ui::Point point);
  void pointerUp(ui::Point point);
  /// Moves the content by this distance in points, towards its end when positive.
  void scrollBy(double distance);
  /// How far it is scrolled, in points.
  [[nodiscard]] double scrolled() const { return scrolled_; }
  /// Whether the key did anything here.
  bool keyDown(const ui::KeyEvent& event);

  [[nodiscard]] ui::ViewHost& host() { return host_; }
  [[nodiscard]] const ui::ViewHost& host() const { return host_; }

 private:
  [[nodiscard]] ui::HostPlatform platform();
  void update();
  [[nodiscard]] ui::Point inContent(ui::Point point) const {
    return {point.x, point.y + scrolled_};
  }
  /// The control with the keyboard comes into sight.
  void revealFocus();

  Hardware& hardware_;
  HardwareContent content_;
  desk::DrawingResources resources_;
  desk::PangoTextMeasurer text_;
  std::int64_t changeCount_ = 0;
  ui::Size size_;
  double scrolled_ = 0;
  ui::ViewHost host_;
};

}  // namespace orvane::showroom
