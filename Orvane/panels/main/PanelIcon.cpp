// The tile with a symbol in the header of a panel.
#include "Orvane/panels/main/PanelIcon.hpp"

#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double side = 48;
/// Just under a quarter of the side, as on the Mac's icon tiles.
constexpr double tileRadius = 11;

}  // namespace

// The tile is lit from above, as the buttons are. The tint's gradient is more transparent at its
// lower end, which would look lighter over a light background; hence the dark fill below it.
View PanelIcon::body(const Environment& /*environment*/) const {
  const Color light = Color::white();
  return Symbol(systemImage)
      .font(Font::system(24, Weight::bold))
      .foreground(tint.buttonLabel())
      .frame(side, side)
      .background(RoundedRectangle(tileRadius)
                      .castShadow({.color = tint.opacity(0.24), .radius = 7, .y = 3})
                      .fill(Color::black().opacity(0.7))
                      .fill(Fill::gradient({tint.opacity(0.98), tint.opacity(0.78)}))
                      .fill(Fill::gradient({light.opacity(0.08), light.opacity(0)})));
}

}  // namespace orvane
