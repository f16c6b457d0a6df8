// The specimens of the gallery: their states are visible, and their pictures reproducible.
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

TEST_F(GalleryTest, TheLanguagesDifferExactlyOnSheetsWithTexts) {
  for (const GallerySheet& sheet : gallerySheets()) {
    const GalleryItem& first = sheet.items.front();
    EXPECT_EQ(sheet.hasTexts, pictureOf(first) != pictureOf(first, OrvaneLanguage::chinese))
        << sheet.name;
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
