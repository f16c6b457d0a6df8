// Converts between CGRect and ui::Rect.
#pragma once

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::showroom {

constexpr ui::Rect rectOf(const CGRect& rect) {
  return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

constexpr CGRect rectOf(const ui::Rect& rect) {
  return {{rect.x, rect.y}, {rect.width, rect.height}};
}

}  // namespace orvane::showroom
