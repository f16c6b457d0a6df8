// Lays out everything first, in points from the sheet's top left corner, because glass must be
// painted after its background.
#include "showroom/gallery/SheetPainter.hpp"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

#include "Orvane/ui/draw/Color.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "showroom/desktop/Glass.hpp"
#include "showroom/desktop/WallpaperArt.hpp"
#include "showroom/desktop/WindowArt.hpp"
#include "showroom/gallery/SheetBackground.hpp"
#include "showroom/gallery/Specimen.hpp"

namespace orvane::showroom {

namespace {

constexpr double sheetMargin = 24;
constexpr double headHeight = 56;
constexpr double bandTitleHeight = 26;
/// The margins of the background on its wallpaper, and of the components on their background.
constexpr double wallpaperBorder = 26;
constexpr double backgroundPadding = 16;
constexpr double captionHeight = 18;
constexpr double rowSpacing = 10;
constexpr double minimumWidth = 360;

const char* nameOf(desk::Appearance::Wallpaper wallpaper) {
  switch (wallpaper) {
    case desk::Appearance::Wallpaper::white:
      return "over a white wallpaper";
    case desk::Appearance::Wallpaper::black:
      return "over a black wallpaper";
    case desk::Appearance::Wallpaper::busy:
      return "over a busy wallpaper";
    case desk::Appearance::Wallpaper::standard:
      break;
  }
  return "over the desk's wallpaper";
}

/// The specimens of one language, and the size of a cell that fits all of them.
struct Cells {
  std::vector<std::unique_ptr<Specimen>> specimens;
  ui::Size cell;
};

class SheetPainting {
 public:
  SheetPainting(const GallerySheet& sheet, const SheetStyle& style, desk::Machine& machine,
                desk::DrawingResources& resources)
      : sheet_(sheet), style_(style), resources_(resources) {
    appearance_.dark = style.isDark;
    appearance_.increaseContrast = style.increasesContrast;
    std::vector<OrvaneLanguage> languages = style.languages;
    if (!sheet.hasTexts) {
      languages.resize(1, OrvaneLanguage::english);
    }
    for (const OrvaneLanguage language : languages) {
      addCells(language, machine);
    }
    if (sheet.background == GallerySheet::Background::dialogue) {
      // The background is opaque.
      wallpapers_.resize(1);
    } else if (isWholeWindow(sheet.background)) {
      wallpapers_ = {desk::Appearance::Wallpaper::standard};
    }
    columns_ = std::min(sheet.columns, sheet.items.size());
    rows_ = (sheet.items.size() + columns_ - 1) / columns_;
  }

  desk::SurfacePointer painted() {
    const ui::Size size = sheetSize();
    desk::SurfacePointer surface = desk::imageSurface(size, style_.scale);
    desk::CairoCanvas canvas(surface.get(), style_.scale, resources_);
    canvas.fill(ui::Shape::rectangle({0, 0, size.width, size.height}), paper());
    paintHead(canvas);
    double top = headHeight;
    for (const desk::Appearance::Wallpaper wallpaper : wallpapers_) {
      canvas.text(nameOf(wallpaper), ui::Font::system(12, ui::Weight::medium), ink(0.6),
                  {sheetMargin, top + 16});
      paintBand(canvas, wallpaper,
                {sheetMargin, top + bandTitleHeight, bandSize().width, bandSize().height});
      top += bandTitleHeight + bandSize().height + rowSpacing;
    }
    return surface;
  }

 private:
  void addCells(OrvaneLanguage language, desk::Machine& machine) {
    machine.userDefaults.set(OrvaneLanguage::defaultsKey, std::string(language.rawValue()));
    Cells cells;
    for (const GalleryItem& item : sheet_.items) {
      cells.specimens.push_back(
          std::make_unique<Specimen>(item, language, appearance_, resources_));
      const ui::Size size = cells.specimens.back()->size();
      const double captionWidth =
          resources_.shaper.measure(item.caption, captionFont).width + 2 * Specimen::margin;
      cells.cell.width = std::max({cells.cell.width, size.width, captionWidth});
      cells.cell.height = std::max(cells.cell.height, size.height);
    }
    cell_.width = std::max(cell_.width, std::ceil(cells.cell.width));
    languages_.push_back(std::move(cells));
  }

  [[nodiscard]] double rowHeight(const Cells& cells) const {
    return std::ceil(cells.cell.height) + captionHeight;
  }

  [[nodiscard]] ui::Size backgroundSize() const {
    double height = 2 * backgroundPadding - rowSpacing;
    for (const Cells& cells : languages_) {
      height += static_cast<double>(rows_) * (rowHeight(cells) + rowSpacing);
    }
    return {static_cast<double>(columns_) * cell_.width + 2 * backgroundPadding, height};
  }

  [[nodiscard]] ui::Size bandSize() const {
    const ui::Size background = backgroundSize();
    return {std::max(background.width + 2 * wallpaperBorder, minimumWidth),
            background.height + 2 * wallpaperBorder};
  }

  [[nodiscard]] ui::Size sheetSize() const {
    const auto bands = static_cast<double>(wallpapers_.size());
    return {bandSize().width + 2 * sheetMargin,
            headHeight + bands * (bandTitleHeight + bandSize().height + rowSpacing) + sheetMargin -
                rowSpacing};
  }

  [[nodiscard]] ui::Rgba ink(double opacity) const {
    return style_.isDark ? ui::Rgba{1, 1, 1, opacity} : ui::Rgba{0, 0, 0, opacity};
  }

  [[nodiscard]] ui::Paint paper() const {
    return ui::Paint::solid(style_.isDark ? ui::Rgba{0.13, 0.13, 0.14, 1}
                                          : ui::Rgba{0.97, 0.97, 0.97, 1});
  }

  void paintHead(desk::CairoCanvas& canvas) const {
    const ui::Font font = ui::Font::system(20, ui::Weight::bold);
    canvas.text(sheet_.title, font, ink(0.9), {sheetMargin, 38});
    const double width = resources_.shaper.measure(sheet_.title, font).width;
    canvas.text(std::string(style_.isDark ? "dark" : "light") +
                    (style_.increasesContrast ? ", Increase Contrast" : ""),
                ui::Font::system(13), ink(0.6), {sheetMargin + width + 10, 38});
  }

  void paintBand(desk::CairoCanvas& canvas, desk::Appearance::Wallpaper wallpaper,
                 const ui::Rect& band) {
    canvas.save();
    canvas.clip(ui::Shape::rectangle(band));
    canvas.transform(ui::Transform::translation(band.origin()));
    paintWallpaper(canvas.context(), wallpaper, style_.isDark, band.width, band.height);
    const ui::Rect background = ui::Rect{0, 0, band.width, band.height}.inset(wallpaperBorder);
    if (!isWholeWindow(sheet_.background)) {
      paintBackground(canvas, sheet_.background, background, appearance_, resources_);
    }
    paintRows(canvas, background);
    canvas.restore();
  }

  void paintRows(desk::CairoCanvas& canvas, const ui::Rect& background) {
    double top = background.y + backgroundPadding;
    const double left =
        std::round(background.center().x - static_cast<double>(columns_) * cell_.width / 2);
    for (const Cells& cells : languages_) {
      for (std::size_t index = 0; index < cells.specimens.size(); ++index) {
        const std::size_t column = index % columns_;
        if (index > 0 && column == 0) {
          top += rowHeight(cells) + rowSpacing;
        }
        paintCell(canvas, cells, index, {left + static_cast<double>(column) * cell_.width, top});
      }
      top += rowHeight(cells) + rowSpacing;
    }
  }

  void paintCell(desk::CairoCanvas& canvas, const Cells& cells, std::size_t index,
                 ui::Point corner) {
    const Specimen& specimen = *cells.specimens[index];
    const ui::Size size = specimen.size();
    const ui::Point place{corner.x + std::round((cell_.width - size.width) / 2),
                          corner.y + std::round((cells.cell.height - size.height) / 2)};
    canvas.save();
    if (isWholeWindow(sheet_.background)) {
      const ui::Rect window = ui::Rect::from(place, size).inset(Specimen::margin);
      paintBackground(canvas, sheet_.background, window, appearance_, resources_);
      canvas.clip(backgroundShape(sheet_.background, window));
    }
    specimen.paint(canvas, place);
    canvas.restore();
    const std::string& caption = sheet_.items[index].caption;
    const double width = resources_.shaper.measure(caption, captionFont).width;
    const ui::Point baseline{corner.x + (cell_.width - width) / 2,
                             corner.y + std::ceil(cells.cell.height) + 8};
    if (isWholeWindow(sheet_.background)) {
      // The caption is on the wallpaper.
      canvas.fill(ui::Shape::capsule({baseline.x - 8, baseline.y - 11, width + 16, 16}), paper());
    }
    canvas.text(caption, captionFont, ink(0.6), baseline);
  }

  static constexpr ui::Font captionFont = ui::Font::system(10);

  const GallerySheet& sheet_;
  const SheetStyle& style_;
  ui::Appearance appearance_;
  std::vector<desk::Appearance::Wallpaper> wallpapers_ = style_.wallpapers;
  desk::DrawingResources& resources_;
  std::vector<Cells> languages_;
  ui::Size cell_;
  std::size_t columns_ = 1;
  std::size_t rows_ = 1;
};

}  // namespace

desk::SurfacePointer paintSheet(const GallerySheet& sheet, const SheetStyle& style,
                                desk::Machine& machine, desk::DrawingResources& resources) {
  return SheetPainting(sheet, style, machine, resources).painted();
}

}  // namespace orvane::showroom
