// Renders every symbol at the sizes and weights of the interface to PNG, for work on the drawings:
// orvane-symbol-sheet FOLDER
#include <cstdio>
#include <filesystem>
#include <string>

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/PinnedFonts.hpp"
#include "desk/canvas/PngFile.hpp"
#include "desk/canvas/SymbolArtwork.hpp"

namespace {

using namespace orvane;

constexpr double pointSizes[] = {13, 18, 24, 60};
constexpr int columnCount = 3;
constexpr double columnWidth = 330;
constexpr double rowHeight = 92;

struct Sheet {
  const char* name;
  ui::Weight weight;
  bool isDark;
  int scale;
};

constexpr Sheet sheets[] = {
    {"light-regular-1x", ui::Weight::regular, false, 1},
    {"light-regular-2x", ui::Weight::regular, false, 2},
    {"dark-regular-1x", ui::Weight::regular, true, 1},
    {"dark-regular-2x", ui::Weight::regular, true, 2},
    {"light-semibold-2x", ui::Weight::semibold, false, 2},
    {"dark-bold-1x", ui::Weight::bold, true, 1},
    {"light-black-2x", ui::Weight::black, false, 2},
};

void drawCell(ui::Canvas& canvas, desk::DrawingResources& resources, const Sheet& sheet,
              const std::string& name, double left, double top) {
  const ui::Rgba ink = sheet.isDark ? ui::Rgba{1, 1, 1, 0.85} : ui::Rgba{0, 0, 0, 0.85};
  const ui::Rgba faint{ink.red, ink.green, ink.blue, 0.4};
  double x = left;
  for (const double size : pointSizes) {
    const ui::Font font{size, sheet.weight};
    const auto extent = resources.symbols.size(name, font);
    if (!extent) {
      continue;
    }
    const double middle = top + 38;
    canvas.symbol(name, font, ink, {x, middle - extent->height / 2, extent->width, extent->height});
    x += extent->width + 2;
    // Text in the same font, to compare alignment and weight.
    if (size < 60) {
      const double baseline = middle + resources.shaper.measure("Hx", font).ascent -
                              resources.shaper.measure("Hx", font).height / 2;
      canvas.text("Hx", font, ink, {x, baseline});
      x += resources.shaper.measure("Hx", font).width + 8;
    }
  }
  canvas.text(name, ui::Font::caption(), faint, {left, top + 88});
}

bool drawSheet(const Sheet& sheet, const std::filesystem::path& folder) {
  const auto artworks = desk::symbolArtworks();
  const int rowCount = (static_cast<int>(artworks.size()) + columnCount - 1) / columnCount;
  const double width = columnWidth * columnCount + 20;
  const double height = rowHeight * rowCount + 20;
  const desk::SurfacePointer surface = desk::imageSurface({width, height}, sheet.scale);
  desk::DrawingResources resources;
  desk::CairoCanvas canvas(surface.get(), sheet.scale, resources);
  const double gray = (sheet.isDark ? 50.0 : 236.0) / 255.0;
  canvas.fill(ui::Shape::rectangle({0, 0, width, height}), ui::Paint::solid({gray, gray, gray, 1}));
  int index = 0;
  for (const desk::SymbolArtwork& artwork : artworks) {
    const int column = index % columnCount;
    const int row = index / columnCount;
    drawCell(canvas, resources, sheet, std::string(artwork.name), 10 + columnWidth * column,
             10 + rowHeight * row);
    ++index;
  }
  return desk::writePng(surface.get(), folder / (std::string(sheet.name) + ".png"));
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) {
    std::fprintf(stderr, "usage: orvane-symbol-sheet FOLDER\n");
    return 2;
  }
  if (const auto message = desk::missingFontsMessage()) {
    std::fprintf(stderr, "%s\n", message->c_str());
    return 1;
  }
  for (const Sheet& sheet : sheets) {
    if (!drawSheet(sheet, arguments[1])) {
      std::fprintf(stderr, "cannot write to %s\n", arguments[1]);
      return 1;
    }
  }
  return 0;
}
