// The surface of a panel in the main window.
#include "Orvane/panels/main/DockPanel.hpp"

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/ui/views/ShapeView.hpp"

namespace orvane {

using namespace ui;

View DockPanel::body(const Environment& environment) const {
  const bool isDark = environment.isDark();
  return content.padding(padding).maximumWidth().background(
      RoundedRectangle(cornerRadius)
          .castShadow(
              {.color = Color::black().opacity(isDark ? 0.396 : 0.18), .radius = 10, .y = 4})
          .fill(Color::white().opacity(isDark ? 0.03 : 0.28))
          .fill(OrvanePalette::panelOverlayGradient(isDark))
          .stroke(OrvanePalette::outline(OrvanePalette::panelRim(isDark), environment), 0.8));
}

}  // namespace orvane
