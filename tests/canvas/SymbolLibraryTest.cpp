// Every symbol has a drawing that is whole, centred and of the same kind as the others.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/canvas/SymbolArtwork.hpp"
#include "desk/canvas/SymbolLibrary.hpp"
#include "tests/canvas/PixelFixture.hpp"

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

// At 96 points a unit of the grid is four pixels, and the drawing is 128 pixels high.
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
      // A full pixel at the border goes on beyond it; a soft one is an edge that ends there.
      if (value == 255 && (x == 0 || y == 0 || x == width - 1 || y == height - 1)) {
        ink.isCut = true;
      }
    }
  }
  return ink;
}

std::string readFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// The symbol names in a source text: the literals of a statement that speaks of a symbol or a
/// system image, and every literal made of lower-case words with dots between them.
std::set<std::string> symbolNamesIn(std::string source) {
  source = std::regex_replace(source, std::regex("//[^\n]*"), "");
  source = std::regex_replace(source, std::regex("#include[^\n]*"), "");
  const std::regex literal("\"([^\"\\\\\n]*)\"");
  const std::regex word("[a-z0-9]+(\\.[a-z0-9]+)*");
  const std::regex dotted("[a-z]+(\\.[a-z0-9]+)+");
  const std::regex speaksOfSymbols("[sS]ymbol|[sS]ystemImage|icon\\(");
  const std::regex address("(com|app|org|orvane)\\..*");
  std::set<std::string> names;
  std::size_t start = 0;
  while (start < source.size()) {
    const std::size_t end = std::min(source.find_first_of(";{}", start), source.size());
    const std::string statement = source.substr(start, end - start);
    const bool isAboutSymbols = std::regex_search(statement, speaksOfSymbols);
    for (std::sregex_iterator match(statement.begin(), statement.end(), literal), none;
         match != none; ++match) {
      const std::string text = (*match)[1];
      const bool isName =
          std::regex_match(text, dotted) || (isAboutSymbols && std::regex_match(text, word));
      if (isName && !std::regex_match(text, address)) {
        names.insert(text);
      }
    }
    start = end + 1;
  }
  return names;
}

TEST(SymbolLibraryTest, EverySymbolOfTheInterfaceHasADrawing) {
  for (const char* name : {"arrow.down",
                           "checkmark",
                           "checkmark.circle.fill",
                           "display",
                           "display.trianglebadge.exclamationmark",
                           "doc.text",
                           "dock.rectangle",
                           "envelope",
                           "eye",
                           "eye.slash",
                           "gearshape",
                           "gearshape.fill",
                           "globe",
                           "hand.raised",
                           "keyboard",
                           "lifepreserver",
                           "lock",
                           "lock.fill",
                           "lock.open",
                           "lock.shield",
                           "macwindow",
                           "minus",
                           "power",
                           "xmark",
                           "xmark.circle.fill"}) {
    EXPECT_TRUE(SymbolLibrary::contains(name)) << name;
  }
}

TEST(SymbolLibraryTest, EveryNameInTheSourcesHasADrawing) {
  for (const char* folder : {"Orvane", "desk"}) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sourceFolder / folder)) {
      const std::string extension = entry.path().extension().string();
      // The kit and the canvas speak of symbols without naming any.
      const std::string place = entry.path().lexically_relative(sourceFolder).generic_string();
      if ((extension != ".cpp" && extension != ".hpp") || place.starts_with("Orvane/ui/") ||
          place.starts_with("desk/canvas/")) {
        continue;
      }
      for (const std::string& name : symbolNamesIn(readFile(entry.path()))) {
        EXPECT_TRUE(SymbolLibrary::contains(name)) << name << " in " << place;
      }
    }
  }
}

TEST(SymbolLibraryTest, TheSearchForNamesFindsThem) {
  EXPECT_EQ(symbolNamesIn("// Symbol(\"comment\")\n"
                          "row.symbol = isOn ? \"lock.open\" : \"lock\"; key = \"title\";\n"
                          "{ \"eye.slash\", \"Open Window\" } Symbol(\"power\").font(x);\n"
                          "domain = \"com.apple.dock\";"),
            (std::set<std::string>{"eye.slash", "lock", "lock.open", "power"}));
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
  for (const SymbolArtwork& artwork : symbolArtworks()) {
    embedded.emplace_back(artwork.name);
    EXPECT_EQ(artwork.svg, readFile(sourceFolder / "desk/symbols" / (embedded.back() + ".svg")));
  }
  EXPECT_EQ(embedded, files);
}

TEST(SymbolLibraryTest, EveryDrawingFitsItsGridInEveryWeight) {
  SymbolLibrary library;
  for (const SymbolArtwork& artwork : symbolArtworks()) {
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
  // A heavier mark cut out of a disc, and a heavier rim in a picture with a gap, may take as much
  // as they give; an outline may not.
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
  for (const SymbolArtwork& artwork : symbolArtworks()) {
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
