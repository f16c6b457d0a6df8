// The tile with a symbol at the head of a panel.
#include "Orvane/panels/main/PanelIcon.hpp"

#include "Orvane/ui/Image.hpp"
#include "Orvane/ui/ShapeView.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double side = 48;
/// A little under a quarter of the side, the proportion of the Mac's own icon tiles.
constexpr double tileRadius = 11;

}  // namespace

View PanelIcon::body(const Environment& /*environment*/) const {
  return Symbol(systemImage)
      .font(Font::system(24, Weight::bold))
      .foreground(Color::white())
      .frame(side, side)
      .background(RoundedRectangle(tileRadius)
                      .castShadow({.color = tint.opacity(0.24), .radius = 7, .y = 3})
                      .fill(Gradient::linear({tint.opacity(0.98), tint.opacity(0.78)})));
}

}  // namespace orvane
