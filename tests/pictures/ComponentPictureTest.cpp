// Some sheets of the gallery against kept pictures.
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "showroom/gallery/SheetPainter.hpp"
#include "tests/support/KeptPicture.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane::showroom {
namespace {

class ComponentPictureTest : public desk::MachineFixture {
 protected:
  /// The items with these captions, over one wallpaper, at one pixel per point.
  void expectSheet(const std::string& name, const std::vector<std::string>& captions, bool isDark,
                   desk::Appearance::Wallpaper wallpaper) {
    GallerySheet sheet = gallerySheetNamed(name);
    std::erase_if(sheet.items, [&](const GalleryItem& item) {
      return std::ranges::find(captions, item.caption) == captions.end();
    });
    ASSERT_EQ(sheet.items.size(), captions.size()) << "a caption is missing";
    sheet.columns = std::min<std::size_t>(sheet.items.size(), 4);
    expectPainted(sheet, {.isDark = isDark, .scale = 1, .wallpapers = {wallpaper}}, name);
  }

  /// The whole sheet in one language.
  void expectDialogues(const std::string& name, bool isDark, OrvaneLanguage language) {
    expectPainted(gallerySheetNamed(name),
                  {.isDark = isDark,
                   .scale = 1,
                   .wallpapers = {desk::Appearance::Wallpaper::white},
                   .languages = {language}},
                  name + (isDark ? "-dark" : "-light"));
  }

 private:
  void expectPainted(const GallerySheet& sheet, const SheetStyle& style,
                     const std::string& fileName) {
    desk::DrawingResources resources;
    const desk::SurfacePointer picture = paintSheet(sheet, style, machine, resources);
    EXPECT_EQ(desk::differenceFromKept(picture.get(), "tests/pictures/" + fileName + ".png"),
              std::nullopt);
  }
};

TEST_F(ComponentPictureTest, Cards) {
  expectSheet("display-choice-card", {"normal", "hovered", "selected", "focused"}, true,
              desk::Appearance::Wallpaper::busy);
}

TEST_F(ComponentPictureTest, TheMainButton) {
  expectSheet("primary-action-button", {"normal", "pressed", "disabled", "in red"}, false,
              desk::Appearance::Wallpaper::busy);
}

TEST_F(ComponentPictureTest, TrafficLights) {
  expectSheet("traffic-light-button",
              {"close, normal", "close, hovered", "minimise, normal", "minimise, hovered"}, false,
              desk::Appearance::Wallpaper::white);
}

TEST_F(ComponentPictureTest, MenuRows) {
  expectSheet("status-menu-row", {"switch, off", "switch, on", "hovered", "display, selected"},
              true, desk::Appearance::Wallpaper::black);
}

TEST_F(ComponentPictureTest, TheMainPanel) {
  expectSheet("main-panel-states", {"pinned"}, true, desk::Appearance::Wallpaper::black);
}

TEST_F(ComponentPictureTest, TheSettings) {
  expectSheet("settings-panel", {"the login item needs approval"}, false,
              desk::Appearance::Wallpaper::white);
}

TEST_F(ComponentPictureTest, TheAlertByDay) {
  expectDialogues("permission-alert", false, OrvaneLanguage::english);
}

TEST_F(ComponentPictureTest, TheAlertByNight) {
  expectDialogues("permission-alert", true, OrvaneLanguage::chinese);
}

TEST_F(ComponentPictureTest, TheGuideByDay) {
  expectDialogues("permission-guide", false, OrvaneLanguage::english);
}

TEST_F(ComponentPictureTest, TheGuideByNight) {
  expectDialogues("permission-guide", true, OrvaneLanguage::chinese);
}

}  // namespace
}  // namespace orvane::showroom
