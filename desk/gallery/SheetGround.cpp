// Glass and shadow come from the window server's own art, the surface from the main panel's parts.
#include "desk/gallery/SheetGround.hpp"

#include "Orvane/panels/main/DockPanel.hpp"
#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/ui/ShapeView.hpp"
#include "Orvane/ui/Stack.hpp"
#include "Orvane/ui/StandardColors.hpp"
#include "desk/desktop/Glass.hpp"
#include "desk/desktop/WindowArt.hpp"
#include "desk/gallery/Specimen.hpp"

namespace orvane::desk {

namespace {

constexpr ui::PaintShadow groundShadow{{0, 0, 0, 0.3}, 18, {0, 6}};
constexpr double panelInset = 8;

double cornerRadius(GallerySheet::Ground ground) {
  switch (ground) {
    case GallerySheet::Ground::window:
    case GallerySheet::Ground::panel:
      return 24;
    case GallerySheet::Ground::menu:
    case GallerySheet::Ground::dialogue:
      break;
  }
  return 10;
}

/// The surface of the main window, and a panel on it.
struct WindowSurface {
  ui::Size size;
  double radius;
  bool hasPanel;

  ui::View body(const ui::Environment& environment) const {
    const bool isDark = environment.isDark();
    const ui::View window = ui::RoundedRectangle(radius)
                                .fill(OrvanePalette::windowGradient(isDark))
                                .stroke(OrvanePalette::windowRim(isDark), 1)
                                .frame(size.width, size.height);
    const double inset = 2 * (panelInset + DockPanel::padding);
    const ui::View content = ui::Rectangle().fill(ui::Color::clear()).height(size.height - inset);
    const ui::View panel = ui::View(DockPanel{content}).width(size.width - 2 * panelInset);
    return ui::ZStack({window, ui::when(hasPanel, panel)});
  }
};

}  // namespace

void paintGround(CairoCanvas& canvas, GallerySheet::Ground ground, const ui::Rect& rect,
                 bool isDark, ui::TextMeasurer& text, DrawingResources& resources) {
  const double radius = cornerRadius(ground);
  const ui::Shape shape = ui::Shape::roundedRectangle(rect, radius);
  canvas.shadow(shape, groundShadow);
  if (ground == GallerySheet::Ground::dialogue) {
    ui::Appearance appearance;
    appearance.dark = isDark;
    canvas.fill(shape,
                ui::Paint::solid(ui::standardColor(ui::SystemColor::windowBackground, appearance)));
    return;
  }
  GlassCache glass;
  paintGlass(canvas, shape, glassSigma, glassTint(isDark), glass);
  if (ground == GallerySheet::Ground::menu) {
    return;
  }
  const WindowSurface surface{rect.size(), radius, ground == GallerySheet::Ground::panel};
  const Specimen specimen({{}, [surface](OrvaneLanguage) { return ui::View(surface); }},
                          OrvaneLanguage::english, isDark, text, resources);
  specimen.paint(canvas, {rect.x - Specimen::margin, rect.y - Specimen::margin});
}

}  // namespace orvane::desk
