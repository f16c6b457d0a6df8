// Glass and shadow come from the window server's own art, the surface from the main panel's parts.
#include "showroom/gallery/SheetGround.hpp"

#include "Orvane/panels/main/DockPanel.hpp"
#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/ui/draw/StandardColors.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/windows/OrvaneSettingsWindow.hpp"
#include "Orvane/windows/OrvaneWindow.hpp"
#include "showroom/desktop/Glass.hpp"
#include "showroom/desktop/WindowArt.hpp"
#include "showroom/gallery/Specimen.hpp"

namespace orvane::showroom {

namespace {

constexpr ui::PaintShadow groundShadow{{0, 0, 0, 0.3}, 18, {0, 6}};
constexpr double panelInset = 8;

using Ground = GallerySheet::Ground;

double cornerRadius(Ground ground) {
  switch (ground) {
    case Ground::window:
    case Ground::panel:
    case Ground::mainWindow:
      return OrvaneWindow::cornerRadius;
    case Ground::settings:
    case Ground::settingsWindow:
      return OrvaneSettingsWindow::cornerRadius;
    case Ground::menu:
    case Ground::dialogue:
      break;
  }
  return 10;
}

/// The surface of the settings or of the main window, and there perhaps a panel on it.
struct WindowSurface {
  Ground ground;
  ui::Size size;

  ui::View body(const ui::Environment& environment) const {
    const bool isDark = environment.isDark();
    const ui::RoundedRectangle outline(cornerRadius(ground));
    if (ground == Ground::settings) {
      return outline.fill(SettingsPalette::windowGradient(isDark)).frame(size.width, size.height);
    }
    const ui::View window = outline.fill(OrvanePalette::windowGradient(isDark))
                                .stroke(OrvanePalette::windowRim(isDark), 1)
                                .frame(size.width, size.height);
    const auto panel = [&] {
      const double inset = 2 * (panelInset + DockPanel::padding);
      const ui::View content = ui::Rectangle().fill(ui::Color::clear()).height(size.height - inset);
      return ui::View(DockPanel{content}).width(size.width - 2 * panelInset);
    };
    return ui::ZStack({window, ui::when(ground == Ground::panel, panel)});
  }
};

}  // namespace

bool isWholeWindow(Ground ground) {
  return ground == Ground::mainWindow || ground == Ground::settingsWindow;
}

ui::Shape groundShape(Ground ground, const ui::Rect& rect) {
  return ui::Shape::roundedRectangle(rect, cornerRadius(ground));
}

void paintGround(desk::CairoCanvas& canvas, Ground ground, const ui::Rect& rect,
                 const ui::Appearance& appearance, ui::TextMeasurer& text,
                 desk::DrawingResources& resources) {
  const ui::Shape shape = groundShape(ground, rect);
  canvas.shadow(shape, groundShadow);
  if (ground == Ground::dialogue) {
    canvas.fill(shape,
                ui::Paint::solid(ui::standardColor(ui::SystemColor::windowBackground, appearance)));
    return;
  }
  GlassCache glass;
  const bool isMenu = ground == Ground::menu;
  paintGlass(canvas, shape, glassSigma,
             isMenu ? menuTint(appearance.dark) : glassTint(appearance.dark), glass);
  if (isMenu) {
    paintMenuEdge(canvas, shape, appearance.dark);
  }
  if (isMenu || isWholeWindow(ground)) {
    return;
  }
  const WindowSurface surface{ground, rect.size()};
  const Specimen specimen(
      {.caption = "", .make = [surface](OrvaneLanguage) { return ui::View(surface); }},
      OrvaneLanguage::english, appearance, text, resources);
  specimen.paint(canvas, {rect.x - Specimen::margin, rect.y - Specimen::margin});
}

}  // namespace orvane::showroom
