// HardwarePanelHost hosts the hardware panel: painting, pointer and keyboard events, scrolling.
#pragma once

#include <cstdint>
#include <optional>

#include "Orvane/ui/host/ViewHost.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "showroom/hardware/HardwarePanel.hpp"

namespace orvane::showroom {

/// Points are relative to the top left corner of the visible part. The hardware must outlive the
/// host.
class HardwarePanelHost {
 public:
  explicit HardwarePanelHost(Hardware& hardware);
  HardwarePanelHost(const HardwarePanelHost&) = delete;
  HardwarePanelHost& operator=(const HardwarePanelHost&) = delete;

  /// Sets the size of the visible part, in points.
  void setSize(ui::Size size) { size_ = size; }
  /// Shows this content at the machine's present time.
  void show(const HardwareContent& content);
  [[nodiscard]] const HardwareContent& content() const { return content_; }
  /// The number of redraw requests other than new content.
  [[nodiscard]] std::int64_t changeCount() const { return changeCount_; }

  /// Paints the visible part with its top left corner at `corner`.
  void paint(desk::CairoCanvas& canvas, ui::Point corner);

  void pointerMoved(ui::Point point);
  void pointerExited() { host_.pointerExited(); }
  void pointerDown(ui::Point point);
  void pointerUp(ui::Point point);
  /// Scrolls by a distance in points, towards the end if positive, within the content.
  void scrollBy(double distance);
  /// The scroll offset in points.
  [[nodiscard]] double scrolled() const { return scrolled_; }
  /// Returns whether the panel handled the key.
  bool keyDown(const ui::KeyEvent& event);

  [[nodiscard]] ui::ViewHost& host() { return host_; }
  [[nodiscard]] const ui::ViewHost& host() const { return host_; }

 private:
  [[nodiscard]] ui::HostPlatform platform();
  void update();
  [[nodiscard]] ui::Point inContent(ui::Point point) const {
    return {point.x, point.y + scrolled_};
  }
  /// Scrolls to the focused control.
  void revealFocus();

  Hardware& hardware_;
  HardwareContent content_;
  desk::DrawingResources resources_;
  std::int64_t changeCount_ = 0;
  ui::Size size_;
  double scrolled_ = 0;
  ui::ViewHost host_;
};

}  // namespace orvane::showroom
