// Rectangles as Core Graphics documents them: every function standardises a rectangle with a
// negative size, which then has a positive size and another origin.
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "Orvane/platform/Quartz.hpp"

namespace {

/// The null rectangle, which is no rectangle at all, has its origin at infinity.
bool isNull(const CGRect& rect) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  return rect.origin.x == infinity || rect.origin.y == infinity;
}

CGRect standardised(CGRect rect) {
  if (rect.size.width < 0) {
    rect.origin.x += rect.size.width;
    rect.size.width = -rect.size.width;
  }
  if (rect.size.height < 0) {
    rect.origin.y += rect.size.height;
    rect.size.height = -rect.size.height;
  }
  return rect;
}

}  // namespace

CGFloat CGRectGetMinX(CGRect rect) {
  return standardised(rect).origin.x;
}

CGFloat CGRectGetMidX(CGRect rect) {
  const CGRect standard = standardised(rect);
  return standard.origin.x + standard.size.width / 2;
}

CGFloat CGRectGetMaxX(CGRect rect) {
  const CGRect standard = standardised(rect);
  return standard.origin.x + standard.size.width;
}

CGFloat CGRectGetMinY(CGRect rect) {
  return standardised(rect).origin.y;
}

CGFloat CGRectGetMidY(CGRect rect) {
  const CGRect standard = standardised(rect);
  return standard.origin.y + standard.size.height / 2;
}

CGFloat CGRectGetMaxY(CGRect rect) {
  const CGRect standard = standardised(rect);
  return standard.origin.y + standard.size.height;
}

CGFloat CGRectGetWidth(CGRect rect) {
  return std::abs(rect.size.width);
}

CGFloat CGRectGetHeight(CGRect rect) {
  return std::abs(rect.size.height);
}

bool CGRectContainsPoint(CGRect rect, CGPoint point) {
  // The event path calls this for every zone, so one test of both signs decides whether the
  // rectangle needs standardising. The comparisons alone exclude every point from the null
  // rectangle, whose origin is infinite.
  const auto signs =
      std::bit_cast<std::int64_t>(rect.size.width) | std::bit_cast<std::int64_t>(rect.size.height);
  if (signs < 0) [[unlikely]] {
    rect = standardised(rect);
  }
  return point.x >= rect.origin.x && point.x < rect.origin.x + rect.size.width &&
         point.y >= rect.origin.y && point.y < rect.origin.y + rect.size.height;
}

bool CGRectEqualToRect(CGRect first, CGRect second) {
  if (isNull(first) || isNull(second)) {
    return isNull(first) && isNull(second);
  }
  const CGRect one = standardised(first);
  const CGRect other = standardised(second);
  return one.origin.x == other.origin.x && one.origin.y == other.origin.y &&
         one.size.width == other.size.width && one.size.height == other.size.height;
}
