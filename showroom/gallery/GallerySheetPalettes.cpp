// The colours of both panels.
#include <functional>
#include <string>
#include <utility>

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/ui/draw/Fill.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::showroom {

namespace {

using ui::Color;
using ui::Environment;
using ui::View;

/// A function of the palette.
using Swatch = std::function<ui::Fill(bool isDark)>;

struct SwatchView {
  Swatch swatch;

  View body(const Environment& environment) const {
    return ui::RoundedRectangle(12)
        .fill(swatch(environment.isDark()))
        .stroke(Color::primary().opacity(0.2), 0.5)
        .frame(150, 96);
  }
};

GalleryItem swatchItem(const std::string& caption, Swatch swatch) {
  return {caption,
          [swatch = std::move(swatch)](OrvaneLanguage) { return View(SwatchView{swatch}); }};
}

GallerySheet mainPaletteSheet() {
  namespace palette = OrvanePalette;
  return {
      .name = "orvane-palette",
      .title = "OrvanePalette",
      .background = GallerySheet::Background::menu,
      .hasTexts = false,
      .items = {swatchItem("windowGradient", palette::windowGradient),
                swatchItem("windowTopHighlight", palette::windowTopHighlight),
                swatchItem("panelOverlayGradient", palette::panelOverlayGradient),
                swatchItem("secondaryButtonFill",
                           [](bool isDark) { return palette::secondaryButtonFill(isDark, false); }),
                swatchItem("secondaryButtonFill, pressed",
                           [](bool isDark) { return palette::secondaryButtonFill(isDark, true); }),
                swatchItem("windowRim", palette::windowRim),
                swatchItem("panelRim", palette::panelRim),
                swatchItem("controlRim", palette::controlRim)}};
}

GalleryItem swatchItem(const std::string& caption, const Color& color) {
  return swatchItem(caption, [color](bool) { return ui::Fill(color); });
}

GallerySheet settingsPaletteSheet() {
  namespace palette = SettingsPalette;
  return {.name = "settings-palette",
          .title = "SettingsPalette",
          .background = GallerySheet::Background::menu,
          .hasTexts = false,
          .columns = 6,
          .items = {swatchItem("windowGradient", Swatch(palette::windowGradient)),
                    swatchItem("headerGradient", Swatch(palette::headerGradient)),
                    swatchItem("dividerGradient", Swatch(palette::dividerGradient)),
                    swatchItem("blue", palette::blue()), swatchItem("sky", palette::sky()),
                    swatchItem("indigo", palette::indigo()), swatchItem("mint", palette::mint()),
                    swatchItem("windowTop", palette::windowTop()),
                    swatchItem("windowMid", palette::windowMid()),
                    swatchItem("windowBottom", palette::windowBottom()),
                    swatchItem("buttonFill", palette::buttonFill()),
                    swatchItem("statementText", palette::statementText())}};
}

}  // namespace

std::vector<GallerySheet> paletteSheets() {
  return {mainPaletteSheet(), settingsPaletteSheet()};
}

}  // namespace orvane::showroom
