// Orvane has its own icon; the other applications have a plate with a symbol.
#include "desk/settings/ApplicationIcon.hpp"

#include "Orvane/ui/views/Image.hpp"
#include "desk/settings/AccessibilityList.hpp"
#include "desk/settings/SettingsBadge.hpp"

namespace orvane::desk {

using namespace ui;

View ApplicationIcon::body(const Environment& environment) const {
  if (name == AccessibilityList::orvane && environment.hasImage("AppIcon")) {
    return Image("AppIcon").resizable().frame(side, side);
  }
  // The grid of the Mac's icons leaves a margin of a tenth around the plate.
  const double plate = side * 0.8;
  const auto badge = [&](const char* symbol, const Color& color) {
    return View(SettingsBadge{symbol, color, plate}).frame(side, side);
  };
  if (name == AccessibilityList::orvane) {
    return badge("dock.rectangle", Color::accent());
  }
  if (name == "Pointer Lens") {
    return badge("magnifyingglass", Color::orange());
  }
  if (name == "Remote Help") {
    return badge("lifepreserver", Color::green());
  }
  if (name == "Text Macros") {
    return badge("keyboard", Color::gray());
  }
  return badge("macwindow", Color::blue());
}

}  // namespace orvane::desk
