// The fonts of text, without any substitution.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <pango/pango.h>

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/PinnedFonts.hpp"
#include "desk/canvas/PngFile.hpp"
#include "desk/canvas/TextShaper.hpp"
#include "tests/support/BytesOf.hpp"

namespace orvane::desk {
namespace {

/// The faces that pango chose for a line, in order, as "family weight".
std::vector<std::string> facesOf(const std::string& line, const ui::Font& font) {
  const TextShaper shaper;
  const ObjectPointer<PangoLayout> layout = shaper.shape(line, font);
  std::vector<std::string> faces;
  const PangoLayoutLine* shaped = pango_layout_get_line_readonly(layout.get(), 0);
  for (const GSList* run = shaped->runs; run != nullptr; run = run->next) {
    const auto* glyphs = static_cast<const PangoGlyphItem*>(run->data);
    PangoFontDescription* face = pango_font_describe(glyphs->item->analysis.font);
    const std::string name = std::string(pango_font_description_get_family(face)) + " " +
                             std::to_string(pango_font_description_get_weight(face));
    pango_font_description_free(face);
    if (faces.empty() || faces.back() != name) {
      faces.push_back(name);
    }
  }
  return faces;
}

TEST(PinnedFontsTest, LatinTextIsInterInTheRequestedWeight) {
  EXPECT_EQ(facesOf("Pin Dock", ui::Font::system(13)),
            std::vector<std::string>{"Inter Display 400"});
  EXPECT_EQ(facesOf("Pin Dock", ui::Font::system(13, ui::Weight::medium)),
            std::vector<std::string>{"Inter Display 500"});
  EXPECT_EQ(facesOf("Pin Dock", ui::Font::system(13, ui::Weight::semibold)),
            std::vector<std::string>{"Inter Display 600"});
  EXPECT_EQ(facesOf("Pin Dock", ui::Font::system(13, ui::Weight::black)),
            std::vector<std::string>{"Inter Display 900"});
}

TEST(PinnedFontsTest, ChineseTextIsNotoSansInSimplifiedForms) {
  EXPECT_EQ(facesOf("固定", ui::Font::system(13)),
            std::vector<std::string>{"Noto Sans CJK SC 400"});
  EXPECT_EQ(facesOf("固定 Dock", ui::Font::headline()),
            (std::vector<std::string>{"Noto Sans CJK SC 700", "Inter Display 700"}));
}

TEST(PinnedFontsTest, TheKeysOfShortcutsAreInTheSystemFace) {
  EXPECT_EQ(facesOf("⌥⌃⇧⌘", ui::Font::body()), std::vector<std::string>{"Inter Display 400"});
}

TEST(PinnedFontsTest, NoOtherFontIsUsedForAMissingCharacter) {
  for (const std::string& face : facesOf("a😀b", ui::Font::body())) {
    EXPECT_TRUE(face == "Inter Display 400" || face == "Noto Sans CJK SC 400") << face;
  }
}

TEST(PinnedFontsTest, TheFontMapHasOnlyThePinnedFamilies) {
  PangoFontFamily** families = nullptr;
  int count = 0;
  pango_font_map_list_families(pinnedFontMap(), &families, &count);
  std::set<std::string> names;
  for (int index = 0; index < count; ++index) {
    names.insert(pango_font_family_get_name(families[index]));
  }
  g_free(families);
  // pango adds generic names as aliases.
  for (const char* generic : {"Sans", "Serif", "Monospace", "System-ui"}) {
    names.erase(generic);
  }
  EXPECT_EQ(names, (std::set<std::string>{systemFontFamily, chineseFontFamily}));
}

TEST(PinnedFontsTest, ThisMachineHasTheFonts) {
  EXPECT_EQ(missingFontsMessage(), std::nullopt);
}

TEST(PinnedFontsDeathTest, WithoutTheFontsTheMessageNamesTheirPackages) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(
      {
        // fontconfig's root folder, which does not exist.
        setenv("FONTCONFIG_SYSROOT", "/nowhere", 1);
        pinnedFontMap();
      },
      "Inter Display Regular.*Noto Sans CJK SC Bold.*fonts-inter and fonts-noto-cjk");
}

TEST(PinnedFontsDeathTest, TheRulesOfTheMachineAreNotRead) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto file = std::filesystem::path(testing::TempDir()) / "orvane-no-fonts.conf";
  std::ofstream(file) << "<fontconfig></fontconfig>";
  EXPECT_EXIT(
      {
        setenv("FONTCONFIG_FILE", file.c_str(), 1);
        pinnedFontMap();
        std::exit(0);
      },
      testing::ExitedWithCode(0), "");
}

void drawChinese(const char* language, const std::filesystem::path& file) {
  setenv("PANGO_LANGUAGE", language, 1);
  setenv("LANG", language, 1);
  DrawingResources resources;
  const SurfacePointer surface = imageSurface(200, 50);
  CairoCanvas canvas(surface.get(), 1, resources);
  canvas.text("直角骨设置", ui::Font::system(36), {0, 0, 0, 1}, {5, 40});
  std::exit(writePng(surface.get(), file) ? 0 : 1);
}

// pango reads the language of the environment once per process, so each test case has its own.
TEST(PinnedFontsDeathTest, TheLanguageOfTheEnvironmentDoesNotChangeCharacters) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const std::filesystem::path folder = testing::TempDir();
  const std::filesystem::path chinese = folder / "orvane-language-chinese.png";
  const std::filesystem::path japanese = folder / "orvane-language-japanese.png";
  EXPECT_EXIT(drawChinese("zh_CN", chinese), testing::ExitedWithCode(0), "");
  EXPECT_EXIT(drawChinese("ja", japanese), testing::ExitedWithCode(0), "");
  EXPECT_GT(bytesOf(chinese).size(), 500U);
  EXPECT_EQ(bytesOf(chinese), bytesOf(japanese));
  std::filesystem::remove(chinese);
  std::filesystem::remove(japanese);
}

}  // namespace
}  // namespace orvane::desk
