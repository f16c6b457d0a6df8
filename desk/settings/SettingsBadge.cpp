// A coloured plate with a white symbol.
#include "desk/settings/SettingsBadge.hpp"

#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane::desk {

using namespace ui;

View SettingsBadge::body(const Environment& /*environment*/) const {
  return Symbol(symbol)
      .font(Font::system(side * 0.6, Weight::medium))
      .foreground(Color::white())
      .frame(side, side)
      .background(RoundedRectangle(side * 0.25).fill(Fill::systemGradient(color)))
      .accessibilityHidden();
}

}  // namespace orvane::desk
