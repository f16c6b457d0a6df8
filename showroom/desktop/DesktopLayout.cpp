// Each monitor is shifted in proportion to the number of monitors left of and above it.
#include "showroom/desktop/DesktopLayout.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

#include "showroom/desktop/Rects.hpp"

namespace orvane::showroom {

namespace {

/// In points: frames that overlap by less still count as adjacent.
constexpr double overlapTolerance = 2;

/// For each frame the length of the longest chain of frames before it along one axis. Frames that
/// do not overlap along the axis have different ranks, so shifts in proportion to the ranks keep
/// them apart.
template <typename Start, typename End>
std::vector<int> ranks(const std::vector<ui::Rect>& frames, const Start& start, const End& end) {
  std::vector<std::size_t> order(frames.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, {},
                           [&](std::size_t index) { return std::invoke(start, frames[index]); });
  std::vector<int> result(frames.size(), 0);
  for (const std::size_t index : order) {
    const double place = std::invoke(start, frames[index]);
    for (const std::size_t other : order) {
      if (std::invoke(start, frames[other]) < place &&
          std::invoke(end, frames[other]) <= place + overlapTolerance) {
        result[index] = std::max(result[index], result[other] + 1);
      }
    }
  }
  return result;
}

/// The screens' frames in points of the picture, origin at the top left of the layout.
std::vector<ui::Rect> framesInPoints(const std::vector<CGRect>& frames, DesktopStyle style) {
  std::vector<ui::Rect> places;
  ui::Rect bounds;
  for (const CGRect& frame : frames) {
    places.push_back(rectOf(frame));
    bounds = bounds.united(places.back());
  }
  ui::Point shift{-bounds.x, -bounds.y};
  if (style == DesktopStyle::monitors) {
    shift.x += DesktopLayout::margin + DesktopLayout::border;
    shift.y += DesktopLayout::margin + DesktopLayout::border;
  }
  const std::vector<int> columns = ranks(places, &ui::Rect::x, &ui::Rect::right);
  const std::vector<int> rows = ranks(places, &ui::Rect::y, &ui::Rect::bottom);
  for (std::size_t index = 0; index < places.size(); ++index) {
    ui::Point distance = shift;
    if (style == DesktopStyle::monitors) {
      distance.x += columns[index] * (2 * DesktopLayout::border + DesktopLayout::gap);
      distance.y +=
          rows[index] * (DesktopLayout::border + DesktopLayout::lowerBorder + DesktopLayout::gap);
    }
    places[index] = places[index].movedBy(distance);
  }
  return places;
}

ui::Size sizeOf(const std::vector<ui::Rect>& places, DesktopStyle style) {
  ui::Size size;
  for (const ui::Rect& place : places) {
    size.width = std::max(size.width, place.right());
    size.height = std::max(size.height, place.bottom());
  }
  if (style == DesktopStyle::monitors && !places.empty()) {
    size.width += DesktopLayout::border + DesktopLayout::margin;
    size.height += DesktopLayout::lowerBorder + DesktopLayout::standHeight + DesktopLayout::margin;
  }
  return size;
}

int roundToPixel(double value) {
  return static_cast<int>(std::lround(value));
}

}  // namespace

DesktopLayout::DesktopLayout(const std::vector<CGRect>& frames, DesktopStyle style, double scale,
                             cairo_rectangle_int_t origin)
    : style_(style), scale_(scale) {
  const std::vector<ui::Rect> places = framesInPoints(frames, style);
  const ui::Size size = sizeOf(places, style);
  pixels_ = {origin.x, origin.y, roundToPixel(size.width * scale),
             roundToPixel(size.height * scale)};
  for (std::size_t index = 0; index < places.size(); ++index) {
    // Rounding edges, not sizes, leaves no seam between adjacent screens.
    const int left = roundToPixel(places[index].x * scale);
    const int top = roundToPixel(places[index].y * scale);
    const int right = roundToPixel(places[index].right() * scale);
    const int bottom = roundToPixel(places[index].bottom() * scale);
    screens_.push_back(
        {rectOf(frames[index]), {origin.x + left, origin.y + top, right - left, bottom - top}});
  }
}

DesktopLayout DesktopLayout::fitted(const std::vector<CGRect>& frames, DesktopStyle style,
                                    const cairo_rectangle_int_t& area, double maximumScale) {
  const ui::Size size = sizeInPoints(frames, style);
  double scale = maximumScale;
  if (size.width > 0 && size.height > 0) {
    scale = std::min({scale, area.width / size.width, area.height / size.height});
  }
  const int width = roundToPixel(size.width * scale);
  const int height = roundToPixel(size.height * scale);
  DesktopLayout layout(
      frames, style, scale,
      {area.x + (area.width - width) / 2, area.y + (area.height - height) / 2, width, height});
  layout.pixels_ = area;
  return layout;
}

ui::Size DesktopLayout::sizeInPoints(const std::vector<CGRect>& frames, DesktopStyle style) {
  return sizeOf(framesInPoints(frames, style), style);
}

std::optional<CGPoint> DesktopLayout::globalPoint(double pixelX, double pixelY) const {
  for (const ScreenPlacement& screen : screens_) {
    const double x = pixelX - screen.pixels.x;
    const double y = pixelY - screen.pixels.y;
    if (x >= 0 && y >= 0 && x < screen.pixels.width && y < screen.pixels.height) {
      return CGPoint{screen.frame.x + x / scale_, screen.frame.y + y / scale_};
    }
  }
  return std::nullopt;
}

ui::Point DesktopLayout::pixel(std::size_t screenIndex, CGPoint globalPoint) const {
  const ScreenPlacement& screen = screens_[screenIndex];
  return {screen.pixels.x + (globalPoint.x - screen.frame.x) * scale_,
          screen.pixels.y + (globalPoint.y - screen.frame.y) * scale_};
}

}  // namespace orvane::showroom
