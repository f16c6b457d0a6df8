// Uses the glass and shadow of windows, and the surfaces of the panels.
#include "showroom/gallery/SheetBackground.hpp"

#include "Orvane/panels/main/DockPanel.hpp"
#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/windows/OrvaneSettingsWindow.hpp"
#include "Orvane/windows/OrvaneWindow.hpp"
#include "showroom/desktop/Glass.hpp"
#include "showroom/desktop/WindowArt.hpp"
#include "showroom/gallery/Specimen.hpp"

namespace orvane::showroom {

namespace {

constexpr ui::PaintShadow backgroundShadow{{0, 0, 0, 0.3}, 18, {0, 6}};
constexpr double panelInset = 8;

using Background = GallerySheet::Background;

double cornerRadius(Background background) {
  switch (background) {
    case Background::window:
    case Background::panel:
    case Background::mainWindow:
      return OrvaneWindow::cornerRadius;
    case Background::settings:
    case Background::settingsWindow:
      return OrvaneSettingsWindow::cornerRadius;
    case Background::menu:
    case Background::dialogue:
      break;
  }
  return 10;
}

/// The surface of the settings or the main window, if needed with a panel.
struct WindowSurface {
  Background background;
  ui::Size size;

  ui::View body(const ui::Environment& environment) const {
    const bool isDark = environment.isDark();
    const ui::RoundedRectangle outline(cornerRadius(background));
    if (background == Background::settings) {
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
    return ui::ZStack({window, ui::when(background == Background::panel, panel)});
  }
};

}  // namespace

bool isWholeWindow(Background background) {
  return background == Background::mainWindow || background == Background::settingsWindow;
}

ui::Shape backgroundShape(Background background, const ui::Rect& rect) {
  return ui::Shape::roundedRectangle(rect, cornerRadius(background));
}

void paintBackground(desk::CairoCanvas& canvas, Background background, const ui::Rect& rect,
                     const ui::Appearance& appearance, desk::DrawingResources& resources) {
  const ui::Shape shape = backgroundShape(background, rect);
  canvas.shadow(shape, backgroundShadow);
  if (background == Background::dialogue) {
    canvas.fill(shape,
                ui::Paint::solid(ui::standardColor(ui::SystemColor::windowBackground, appearance)));
    return;
  }
  GlassCache glass;
  const bool isMenu = background == Background::menu;
  paintGlass(canvas, shape, windowGlassSigma,
             isMenu ? menuTint(appearance.dark) : glassTint(appearance.dark), glass);
  if (isMenu) {
    paintMenuEdge(canvas, shape, appearance.dark);
  }
  if (isMenu || isWholeWindow(background)) {
    return;
  }
  const WindowSurface surface{background, rect.size()};
  const Specimen specimen(
      {.caption = "", .make = [surface](OrvaneLanguage) { return ui::View(surface); }},
      OrvaneLanguage::english, appearance, resources);
  specimen.paint(canvas, {rect.x - Specimen::margin, rect.y - Specimen::margin});
}

}  // namespace orvane::showroom
