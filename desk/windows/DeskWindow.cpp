// The geometry of a window, and what AppKit lets become key or main.
#include "desk/windows/DeskWindow.hpp"

#include <algorithm>
#include <cmath>

namespace orvane::desk {

namespace {

using appkit::StyleMask::titled;

/// The corner radius of a window with a title bar, in points.
constexpr double titledCornerRadius = 10;
constexpr double closeButtonSize = 12;
constexpr double closeButtonMargin = 8;
constexpr double tallCloseButtonMargin = 20;

bool hasTitleBarOnTop(std::uint64_t styleMask) {
  return (styleMask & titled) != 0 && (styleMask & DeskWindow::fullSizeContentView) == 0;
}

CGRect frameFor(CGRect contentRect, std::uint64_t styleMask) {
  if (hasTitleBarOnTop(styleMask)) {
    contentRect.size.height += DeskWindow::titleBarHeight;
  }
  return contentRect;
}

/// Whether a point is inside a rectangle with circular corners.
bool isInRounded(const ui::Rect& rect, double radius, ui::Point point) {
  if (!rect.contains(point)) {
    return false;
  }
  const double x = std::clamp(point.x, rect.x + radius, std::max(rect.x, rect.right() - radius));
  const double y = std::clamp(point.y, rect.y + radius, std::max(rect.y, rect.bottom() - radius));
  return std::hypot(point.x - x, point.y - y) <= radius;
}

}  // namespace

DeskWindow::DeskWindow(appkit::WindowKind kindOfWindow, CGRect contentRect, std::uint64_t mask)
    : kind(kindOfWindow),
      styleMask(mask),
      frame(frameFor(contentRect, mask)),
      className(kindOfWindow == appkit::WindowKind::panel ? "NSPanel" : "NSWindow"),
      hidesOnDeactivate(kindOfWindow == appkit::WindowKind::panel) {}

bool DeskWindow::canBecomeKey() const {
  return canBecomeKeyWindow.value_or(hasStyle(titled));
}

bool DeskWindow::canBecomeMain() const {
  return canBecomeMainWindow.value_or(hasStyle(titled) && !isPanel());
}

CGRect DeskWindow::contentFrame() const {
  CGRect area = frame;
  if (hasTitleBarOnTop(styleMask)) {
    area.size.height -= titleBarHeight;
  }
  return area;
}

ui::Point DeskWindow::contentPoint(CGPoint place) const {
  const CGRect area = contentFrame();
  return {place.x - area.origin.x, area.origin.y + area.size.height - place.y};
}

ui::Shape DeskWindow::outline() const {
  const ui::Rect bounds{0, 0, frame.size.width, frame.size.height};
  if (hasStyle(titled)) {
    return ui::Shape::roundedRectangle(bounds, titledCornerRadius);
  }
  if (content != nullptr && content->masksToBounds && content->cornerRadius > 0) {
    return ui::Shape::roundedRectangle(bounds, content->cornerRadius, content->cornerStyle);
  }
  return ui::Shape::rectangle(bounds);
}

bool DeskWindow::contains(CGPoint place) const {
  const ui::Shape shape = outline();
  const ui::Point local{place.x - frame.origin.x, frame.origin.y + frame.size.height - place.y};
  const double radius =
      shape.kind == ui::Shape::Kind::roundedRectangle ? shape.effectiveRadius() : 0;
  return isInRounded(shape.rect, radius, local);
}

bool DeskWindow::isInTitleBar(CGPoint place) const {
  const double reach = hasTitleBarOnTop(styleMask) ? 0 : tallTitleBarHeight;
  return hasStyle(titled) && contains(place) && contentPoint(place).y < reach;
}

std::optional<ui::Rect> DeskWindow::closeButton() const {
  if (!hasStyle(titled) || !hasStyle(appkit::StyleMask::closable)) {
    return std::nullopt;
  }
  if (hasStyle(fullSizeContentView)) {
    return ui::Rect{tallCloseButtonMargin, tallCloseButtonMargin, closeButtonSize, closeButtonSize};
  }
  return ui::Rect{closeButtonMargin, (titleBarHeight - closeButtonSize) / 2, closeButtonSize,
                  closeButtonSize};
}

}  // namespace orvane::desk
