// Every symbol has a drawing that is complete, centred and consistent with the others.
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/canvas/Artwork.hpp"
#include "desk/canvas/SymbolLibrary.hpp"
#include "tests/canvas/PixelFixture.hpp"
#include "tests/support/BytesOf.hpp"

namespace orvane::desk {
namespace {

const std::filesystem::path sourceFolder = ORVANE_SOURCE_FOLDER;

constexpr ui::Weight weights[] = {ui::Weight::ultraLight, ui::Weight::thin,   ui::Weight::light,
                                  ui::Weight::regular,    ui::Weight::medium, ui::Weight::semibold,
                                  ui::Weight::bold,       ui::Weight::heavy,  ui::Weight::black};

struct Ink {
  double amount = 0;
  int top = 0;
  int bottom = 0;
  bool isCut = false;
};

// At 96 points a grid unit is four pixels, and the drawing is 128 pixels high.
constexpr double inspectionSize = 96;
constexpr double pixelsPerUnit = 4;

Ink inkOf(const Mask& mask) {
  Ink ink{0, 1 << 20, -1, false};
  const int width = cairo_image_surface_get_width(mask.surface.get());
  const int height = cairo_image_surface_get_height(mask.surface.get());
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int value = coverageAt(mask.surface.get(), x, y);
      ink.amount += value / 255.0;
      if (value > 127) {
        ink.top = std::min(ink.top, y);
        ink.bottom = std::max(ink.bottom, y + 1);
      }
      // An opaque pixel at the border means that the drawing is cut.
      if (value == 255 && (x == 0 || y == 0 || x == width - 1 || y == height - 1)) {
        ink.isCut = true;
      }
    }
  }
  return ink;
}

TEST(SymbolLibraryTest, EveryDrawingInTheFolderIsEmbedded) {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(sourceFolder / "desk/symbols")) {
    if (entry.path().extension() == ".svg") {
      files.push_back(entry.path().stem().string());
    }
  }
  std::ranges::sort(files);
  std::vector<std::string> embedded;
  for (const Artwork& artwork : symbolArtworks()) {
    embedded.emplace_back(artwork.name);
    EXPECT_EQ(artwork.bytes, bytesOf(sourceFolder / "desk/symbols" / (embedded.back() + ".svg")));
  }
  EXPECT_EQ(embedded, files);
}

TEST(SymbolLibraryTest, EveryDrawingFitsItsGridInEveryWeight) {
  SymbolLibrary library;
  for (const Artwork& artwork : symbolArtworks()) {
    for (const ui::Weight weight : weights) {
      const Mask mask = library.makeMask(std::string(artwork.name), {inspectionSize, weight}, {});
      ASSERT_TRUE(mask.surface) << artwork.name;
      const Ink ink = inkOf(mask);
      EXPECT_FALSE(ink.isCut) << artwork.name << " at " << static_cast<int>(weight);
      EXPECT_GT(ink.amount, 100) << artwork.name;
    }
  }
}

TEST(SymbolLibraryTest, AHeavierWeightHasMoreInk) {
  SymbolLibrary library;
  // Only outlines: with a mark cut out of a disc, or with a gap, a heavier stroke may have less
  // ink.
  for (const char* name : {"lock", "eye", "display", "gearshape", "xmark", "checkmark", "minus",
                           "power", "globe", "hand.raised", "doc.text", "envelope", "keyboard",
                           "macwindow", "lock.fill", "lifepreserver", "arrow.down"}) {
    double before = 0;
    for (const ui::Weight weight : weights) {
      const double amount = inkOf(library.makeMask(name, {inspectionSize, weight}, {})).amount;
      EXPECT_GT(amount, before) << name << " at " << static_cast<int>(weight);
      before = amount;
    }
  }
}

TEST(SymbolLibraryTest, EverySymbolIsCenteredOnTheMiddleOfACapital) {
  SymbolLibrary library;
  for (const Artwork& artwork : symbolArtworks()) {
    const Ink ink = inkOf(
        library.makeMask(std::string(artwork.name), {inspectionSize, ui::Weight::regular}, {}));
    const double middle = (ink.top + ink.bottom) / 2.0 / pixelsPerUnit;
    EXPECT_NEAR(middle, 16.0, 1.0) << artwork.name;
  }
}

TEST(SymbolLibraryTest, TheSizeFollowsThePointSizeAndAnUnknownNameHasNone) {
  SymbolLibrary library;
  const auto small = library.size("lock", ui::Font::system(12));
  const auto large = library.size("lock", ui::Font::system(36, ui::Weight::bold));
  ASSERT_TRUE(small && large);
  EXPECT_DOUBLE_EQ(small->width, 11);
  EXPECT_DOUBLE_EQ(small->height, 14);
  EXPECT_DOUBLE_EQ(large->width, 33);
  EXPECT_DOUBLE_EQ(large->height, 42);
  EXPECT_FALSE(library.size("no.such.symbol", ui::Font::body()));
  EXPECT_FALSE(library.size("", ui::Font::body()));
  EXPECT_FALSE(library.size("lock", ui::Font::system(0)));
  EXPECT_FALSE(library.makeMask("no.such.symbol", ui::Font::body(), {}).surface);
  EXPECT_FALSE(library.makeMask("lock", ui::Font::system(-1), {}).surface);
}

}  // namespace
}  // namespace orvane::desk
