// Every symbol has a drawing that is complete, centred and consistent with the others.
#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
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

/// Whether the text consists of lower-case words with dots between them, like names of symbols.
bool isSymbolName(std::string_view text) {
  char before = '.';
  for (const char character : text) {
    const bool isLetter = character >= 'a' && character <= 'z';
    const bool isDigit = character >= '0' && character <= '9';
    if (!isLetter && (before == '.' ? !isDigit : !isDigit && character != '.')) {
      return false;
    }
    before = character;
  }
  // The first word is never a number.
  return before != '.' && text.front() >= 'a';
}

/// The string literals that look like names of symbols, except identities of views, included files
/// and comments.
std::set<std::string> symbolNamesIn(const std::string& source) {
  std::set<std::string> names;
  std::istringstream lines(source);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("#include")) {
      continue;
    }
    std::size_t place = 0;
    while ((place = line.find_first_of("\"/", place)) != std::string::npos) {
      if (line[place] == '/') {
        if (line.compare(place, 2, "//") == 0) {
          break;
        }
        ++place;
        continue;
      }
      const std::size_t end = line.find('"', place + 1);
      if (end == std::string::npos) {
        break;
      }
      const std::string literal = line.substr(place + 1, end - place - 1);
      // Identities of views and keys of shortcuts are no symbols.
      const auto follows = [&](const std::string& call) {
        return place >= call.size() && line.compare(place - call.size(), call.size(), call) == 0;
      };
      const bool isIdentity = follows("id(") || follows("ommand(");
      if (isSymbolName(literal) && !isIdentity) {
        names.insert(literal);
      }
      place = end + 1;
    }
  }
  return names;
}

TEST(SymbolLibraryTest, EveryNameInTheViewsHasADrawing) {
  std::set<std::string> all;
  for (const char* folder : {"app", "panels", "permission"}) {
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(sourceFolder / "Orvane" / folder)) {
      const std::string extension = entry.path().extension().string();
      if (extension != ".cpp" && extension != ".hpp") {
        continue;
      }
      for (const std::string& name : symbolNamesIn(bytesOf(entry.path()))) {
        EXPECT_TRUE(SymbolLibrary::contains(name)) << name << " in " << entry.path();
        all.insert(name);
      }
    }
  }
  // The search must find at least the icons of the menu bar.
  EXPECT_TRUE(all.contains("lock.fill"));
  EXPECT_TRUE(all.contains("lock.open"));
}

TEST(SymbolLibraryTest, TheSearchForNamesFindsThem) {
  EXPECT_EQ(
      symbolNamesIn("#include \"lock.shield\"\n"
                    "x = 6 / 2;  // Symbol(\"comment\")\n"
                    "row.symbol = isOn ? \"lock.open\" : \"lock\"; key = \"appLanguage\";\n"
                    "{ \"eye.slash\", \"Open Window\", \"1\" } Symbol(\"power\").id(\"icon\");\n"
                    "battery = \"battery.100\"; none = \"\"; odd = \"a.\";"),
      (std::set<std::string>{"battery.100", "eye.slash", "lock", "lock.open", "power"}));
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
