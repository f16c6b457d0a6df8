// DesktopLayout maps displays to a picture. Screens begin and end on whole pixels, so that nothing
// is blurred.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <cairo.h>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::showroom {

/// `exact` shows only the screens, in global coordinates. `monitors` draws a monitor around each
/// screen and moves the monitors apart.
enum class DesktopStyle { exact, monitors };

/// One screen in the picture.
struct ScreenPlacement {
  /// In global coordinates.
  ui::Rect frame;
  /// In pixels of the picture.
  cairo_rectangle_int_t pixels{};
};

class DesktopLayout {
 public:
  /// In points, for the `monitors` style: the border of a monitor, its lower border with the name,
  /// the gap between two monitors, the margin around all of them, and the height of the stands
  /// below the lowest row.
  static constexpr double border = 10;
  static constexpr double lowerBorder = 26;
  static constexpr double gap = 14;
  static constexpr double margin = 40;
  static constexpr double standHeight = 46;

  /// Frames are in global coordinates, `scale` is in pixels per point, `origin` is the top left
  /// pixel of the layout in the picture.
  DesktopLayout(const std::vector<CGRect>& frames, DesktopStyle style, double scale,
                cairo_rectangle_int_t origin = {});

  /// The layout centred in an area of the picture, as large as fits but with at most `maximumScale`
  /// pixels per point. pixels() is the whole area.
  [[nodiscard]] static DesktopLayout fitted(const std::vector<CGRect>& frames, DesktopStyle style,
                                            const cairo_rectangle_int_t& area, double maximumScale);

  /// The size of the layout in points; empty without displays.
  [[nodiscard]] static ui::Size sizeInPoints(const std::vector<CGRect>& frames, DesktopStyle style);

  [[nodiscard]] DesktopStyle style() const { return style_; }
  [[nodiscard]] double scale() const { return scale_; }
  /// The whole layout in pixels of the picture.
  [[nodiscard]] const cairo_rectangle_int_t& pixels() const { return pixels_; }
  /// In the order of the displays.
  [[nodiscard]] const std::vector<ScreenPlacement>& screens() const { return screens_; }

  /// The point that a pixel shows, in global coordinates; none between the screens.
  [[nodiscard]] std::optional<CGPoint> globalPoint(double pixelX, double pixelY) const;
  /// The pixel that shows a point of a screen, in pixels of the picture.
  [[nodiscard]] ui::Point pixel(std::size_t screenIndex, CGPoint globalPoint) const;

 private:
  DesktopStyle style_;
  double scale_;
  cairo_rectangle_int_t pixels_{};
  std::vector<ScreenPlacement> screens_;
};

}  // namespace orvane::showroom
