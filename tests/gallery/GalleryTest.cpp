// Every specimen of the gallery reaches its state, in both languages and appearances.
#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/canvas/ImageSurface.hpp"
#include "showroom/gallery/GallerySheet.hpp"
#include "showroom/gallery/SheetPainter.hpp"
#include "showroom/gallery/Specimen.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane::showroom {
namespace {

class GalleryTest : public desk::MachineFixture {
 protected:
  std::string pictureOf(const GalleryItem& item, OrvaneLanguage language, bool isDark = false) {
    machine.userDefaults.set(OrvaneLanguage::defaultsKey, std::string(language.rawValue()));
    ui::Appearance appearance;
    appearance.dark = isDark;
    const Specimen specimen(item, language, appearance, resources);
    const desk::SurfacePointer surface = desk::imageSurface(specimen.size());
    desk::CairoCanvas canvas(surface.get(), 1, resources);
    specimen.paint(canvas, {0, 0});
    return desk::contentOf(surface.get());
  }
  std::string pictureOf(const GalleryItem& item) {
    return pictureOf(item, OrvaneLanguage::english);
  }

  static const GalleryItem& item(const GallerySheet& sheet, const std::string& caption) {
    return *std::ranges::find(sheet.items, caption, &GalleryItem::caption);
  }

  desk::DrawingResources resources;
};

TEST_F(GalleryTest, SheetsHaveDistinctNamesAndItems) {
  std::set<std::string> names;
  for (const GallerySheet& sheet : gallerySheets()) {
    EXPECT_TRUE(names.insert(sheet.name).second) << sheet.name;
    EXPECT_FALSE(sheet.items.empty()) << sheet.name;
  }
}

TEST_F(GalleryTest, APressAndTheFocusAreVisible) {
  int seen = 0;
  for (const GallerySheet& sheet : gallerySheets()) {
    for (GalleryItem item : sheet.items) {
      if (item.interaction == Interaction::pressed || item.interaction == Interaction::focused) {
        const auto used = pictureOf(item);
        item.interaction = Interaction::none;
        EXPECT_NE(used, pictureOf(item)) << sheet.name << ": " << item.caption;
        ++seen;
      }
    }
  }
  EXPECT_GE(seen, 20);
}

TEST_F(GalleryTest, ThePointerIsVisibleOnCardsLightsAndRowsButNotOnARowWithASwitch) {
  const GallerySheet cards = gallerySheetNamed("display-choice-card");
  EXPECT_NE(pictureOf(item(cards, "hovered")), pictureOf(item(cards, "normal")));
  const GallerySheet lights = gallerySheetNamed("traffic-light-button");
  EXPECT_NE(pictureOf(item(lights, "close, hovered")),
            pictureOf(item(lights, "close, cluster hovered")));
  const GallerySheet rows = gallerySheetNamed("status-menu-row");
  EXPECT_NE(pictureOf(item(rows, "hovered")), pictureOf(item(rows, "normal")));
  EXPECT_EQ(pictureOf(item(rows, "switch, hovered")), pictureOf(item(rows, "switch, off")));
}

TEST_F(GalleryTest, DisabledButtonsLookDifferent) {
  for (const GallerySheet& sheet : buttonSheets()) {
    if (!sheet.name.starts_with("settings-")) {
      EXPECT_NE(pictureOf(item(sheet, "disabled")), pictureOf(item(sheet, "normal"))) << sheet.name;
    }
  }
}

TEST_F(GalleryTest, TheLanguagesDifferExactlyOnSheetsWithTexts) {
  for (const GallerySheet& sheet : gallerySheets()) {
    const GalleryItem& first = sheet.items.front();
    EXPECT_EQ(sheet.hasTexts, pictureOf(first, OrvaneLanguage::english) !=
                                  pictureOf(first, OrvaneLanguage::chinese))
        << sheet.name;
  }
}

TEST_F(GalleryTest, TheDarkAppearanceDiffers) {
  for (const GallerySheet& sheet : gallerySheets()) {
    // The lights and the icon have fixed colours.
    if (sheet.name != "traffic-light-button" && sheet.name != "draggable-app-icon") {
      EXPECT_NE(pictureOf(sheet.items.front(), OrvaneLanguage::english, false),
                pictureOf(sheet.items.front(), OrvaneLanguage::english, true))
          << sheet.name;
    }
  }
}

TEST_F(GalleryTest, ASheetIsReproducibleAndMissesNoImage) {
  for (const GallerySheet& sheet : gallerySheets()) {
    const SheetStyle style{.isDark = true, .scale = 0.25};
    const auto first = desk::contentOf(paintSheet(sheet, style, machine, resources).get());
    desk::DrawingResources fresh;
    EXPECT_EQ(first, desk::contentOf(paintSheet(sheet, style, machine, fresh).get())) << sheet.name;
  }
  EXPECT_EQ(resources.missingNames, std::set<std::string>());
}

}  // namespace
}  // namespace orvane::showroom
