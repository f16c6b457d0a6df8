// The texts of the display cards that the displays do not provide themselves.
#include "Orvane/panels/main/DisplayCardTexts.hpp"

#include <algorithm>
#include <cmath>

namespace orvane::DisplayCardTexts {

std::string fallbackLabel(std::size_t position, OrvaneLanguage language) {
  switch (position) {
    case 0:
      return language.localized("Built-in Display", "内建显示器");
    case 1:
      return language.localized("Studio Display", "Studio 显示器");
    case 2:
      return language.localized("HDMI Display", "HDMI 显示器");
    default:
      return language.localized("Display ", "显示器 ") + std::to_string(position + 1);
  }
}

std::string roleLabel(const DisplaySnapshot& display, const std::vector<DisplaySnapshot>& displays,
                      OrvaneLanguage language) {
  if (display.isMain) {
    return language.localized("Main Display", "主显示器");
  }
  const auto main = std::ranges::find_if(displays, &DisplaySnapshot::isMain);
  if (main != displays.end()) {
    // Frames are in window-system coordinates: y points upwards.
    const double dx = CGRectGetMidX(display.frame) - CGRectGetMidX(main->frame);
    const double dy = CGRectGetMidY(display.frame) - CGRectGetMidY(main->frame);
    if (std::abs(dx) < std::abs(dy)) {
      return dy > 0 ? language.localized("Upper Display", "上方显示器")
                    : language.localized("Lower Display", "下方显示器");
    }
    if (dx < 0) {
      return language.localized("Left Display", "左侧显示器");
    }
    if (dx > 0) {
      return language.localized("Right Display", "右侧显示器");
    }
  }
  return language.localized("External Display", "外接显示器");
}

}  // namespace orvane::DisplayCardTexts
