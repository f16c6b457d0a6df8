// The dimensions of menus, in points, for layout and painting.
#pragma once

#include "Orvane/platform/appkit/Menu.hpp"
#include "Orvane/ui/draw/Font.hpp"
#include "desk/windows/HostedView.hpp"

namespace orvane::desk::MenuMetrics {

inline constexpr ui::Font font = ui::Font::system(13);
inline constexpr double cornerRadius = 8;
/// Above the first and below the last row.
inline constexpr double padding = 5;
inline constexpr double rowHeight = 22;
inline constexpr double separatorHeight = 11;
/// The leading edge of a title, after the space for a check mark.
inline constexpr double titleInset = 24;
inline constexpr double trailingInset = 16;
inline constexpr double baseline = 15.5;

/// `view` is the item's view, or null.
inline double heightOf(const appkit::MenuItem& item, const HostedView* view) {
  if (view != nullptr) {
    return view->frame().size.height;
  }
  return item.isSeparator ? separatorHeight : rowHeight;
}

}  // namespace orvane::desk::MenuMetrics
