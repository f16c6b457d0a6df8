// Every text of the panels can be read: its contrast is measured from the pixels of the desktop, in
// both appearances, over a white, a black and a busy wallpaper.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/ui/StandardColors.hpp"
#include "desk/desktop/DesktopPicture.hpp"
#include "tests/panels/PanelFixture.hpp"
#include "tests/panels/TextRun.hpp"
#include "tests/support/Contrast.hpp"

namespace orvane {
namespace {

using Wallpaper = desk::Appearance::Wallpaper;

/// Why a text may be fainter than 4.5 to 1, and what it must reach then. But for the first, the
/// colours are the user's and the system's own.
struct Exception {
  std::string reason;
  bool (*applies)(const TextRun& run);
  double least;
};

bool isWhite(const ui::Rgba& color) {
  return color.red > 0.99 && color.green > 0.99 && color.blue > 0.99 && color.alpha > 0.99;
}
/// The system's blue, which is the accent colour unless the user has chosen another.
bool isAccent(const ui::Rgba& color, bool isDark) {
  ui::Appearance appearance;
  appearance.dark = isDark;
  const ui::Rgba accent = ui::standardColor(ui::SystemColor::blue, appearance);
  return color.red == accent.red && color.green == accent.green && color.blue == accent.blue;
}

const std::vector<Exception>& exceptions() {
  static const std::vector<Exception> all{
      {"bold text of 18 points and more needs 3 to 1",
       [](const TextRun& run) {
         return run.font.size >= 18 && run.font.weight >= ui::Weight::bold && run.opacity == 1;
       },
       3.0},
      {"the label of the main button is white on the accent colour or on red",
       [](const TextRun& run) { return isWhite(run.color) && run.font.size == 15; }, 3.1},
      {"the chosen card and an active pill are written in the accent colour as it is, by day",
       [](const TextRun& run) { return isAccent(run.color, false); }, 2.8},
      {"and in the dark, on the lightest glass there is: over white, raised, with the top's light",
       [](const TextRun& run) { return isAccent(run.color, true); }, 2.2},
  };
  return all;
}

double leastContrast(const TextRun& run) {
  for (const Exception& exception : exceptions()) {
    if (exception.applies(run)) {
      return exception.least;
    }
  }
  return 4.5;
}

class ContrastTest : public PanelFixture {
 protected:
  static constexpr double scale = 3;

  ContrastTest() {
    EXPECT_FALSE(machine.displays.detach(3));
    EXPECT_FALSE(machine.displays.detach(2));
    EXPECT_FALSE(machine.displays.setFrame(1, CGRectMake(0, 0, 720, 620)));
    attach(2, CGRectMake(720, 0, 80, 620), "Side", false);
    machine.preferences.set({desk::Dock::preferencesDomain}, desk::Dock::autoHideKey, true);
    machine.advance(2);
  }

  /// In pixels.
  struct Area {
    int left;
    int top;
    int right;
    int bottom;
  };

  /// Of the ink that differs most from what lies just above and below the text.
  [[nodiscard]] static double measured(cairo_surface_t* surface, const Area& area) {
    std::vector<double> around;
    for (int x = area.left; x < area.right; ++x) {
      around.push_back(luminance(pixelAt(surface, x, area.top)));
      around.push_back(luminance(pixelAt(surface, x, area.bottom)));
    }
    std::ranges::sort(around);
    const double background = around.at(around.size() / 2);
    double greatest = 1;
    for (int y = area.top; y < area.bottom; ++y) {
      for (int x = area.left; x < area.right; ++x) {
        greatest = std::max(greatest, contrast(background, luminance(pixelAt(surface, x, y))));
      }
    }
    return greatest;
  }

  void expectReadable(const std::string& surface, const std::string& where) {
    const auto shown = window(surface);
    ASSERT_NE(shown, nullptr);
    desk::DrawingResources resources;
    desk::DesktopPainter painter(resources);
    desk::DesktopScene scene(machine, application);
    scene.onlySurface = surface;
    const desk::SurfacePointer picture =
        desk::renderDesktop(painter, scene, desk::DesktopStyle::exact, scale);
    ASSERT_TRUE(picture);
    cairo_surface_flush(picture.get());
    TextCollector collector(server().resources().shaper);
    const ui::Size size = shown->content->host().size();
    shown->content->host().paint(collector, {0, 0, size.width, size.height});
    EXPECT_GT(collector.runs().size(), 8U);
    const CGPoint corner = server().topLeftOf(*shown);
    for (const TextRun& run : collector.runs()) {
      const auto pixel = [](double points) {
        return static_cast<int>(std::lround(points * scale));
      };
      const Area area{pixel(corner.x + run.frame.x), pixel(corner.y + run.frame.y) - 3,
                      pixel(corner.x + run.frame.right()),
                      pixel(corner.y + run.frame.bottom()) + 3};
      const double reached = measured(picture.get(), area);
      EXPECT_GE(reached, leastContrast(run)) << "\"" << run.line << "\" " << where;
    }
  }

  /// Both panels over every wallpaper in an appearance, with whatever is switched on.
  void expectReadableEverywhere(const std::string& surface, const std::string& state) {
    for (const bool isDark : {false, true}) {
      for (const Wallpaper wallpaper : {Wallpaper::white, Wallpaper::black, Wallpaper::busy}) {
        machine.appearance.isDark = isDark;
        machine.appearance.wallpaper = wallpaper;
        machine.advance(1);
        expectReadable(surface, state + (isDark ? ", dark" : ", light") + ", wallpaper " +
                                    std::to_string(static_cast<int>(wallpaper)));
      }
    }
  }
};

TEST_F(ContrastTest, OfTheMainPanelAtRest) {
  openMain();
  expectReadableEverywhere(mainPanel, "at rest");
}

TEST_F(ContrastTest, OfTheMainPanelWhilePinned) {
  openMain();
  press("Pin Dock");
  expectReadableEverywhere(mainPanel, "pinned");
}

TEST_F(ContrastTest, OfTheMainPanelWhilePreventingInChinese) {
  openMain();
  model().setAppLanguage(OrvaneLanguage::chinese);
  model().toggleHideDockOnAllDisplays();
  expectReadableEverywhere(mainPanel, "preventing");
}

TEST_F(ContrastTest, OfTheSettings) {
  openSettings();
  expectReadableEverywhere(settingsPanel, "settings");
}

}  // namespace
}  // namespace orvane
