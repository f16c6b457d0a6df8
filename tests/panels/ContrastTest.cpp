// The contrast of every text of the main panel in every accent colour, measured from the pixels of
// the desktop. tests/gallery covers the other states.
#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "showroom/desktop/DesktopPicture.hpp"
#include "tests/panels/PanelFixture.hpp"
#include "tests/panels/TextRun.hpp"
#include "tests/support/Contrast.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {
namespace {

using Wallpaper = desk::Appearance::Wallpaper;
using Accent = desk::Appearance::Accent;

/// The system's choices: blue, purple, pink, red, orange, yellow, green and graphite.
constexpr std::array accents{Accent{0, 122, 255}, Accent{149, 61, 150}, Accent{247, 79, 158},
                             Accent{224, 56, 62}, Accent{247, 130, 27}, Accent{255, 199, 38},
                             Accent{98, 186, 70}, Accent{152, 152, 152}};

/// 4.5, but 3 for large text and, without Increase Contrast, for text in or on the accent colour.
double minimumContrast(const TextRun& run, bool increasesContrast) {
  const bool isLarge = run.font.size >= 18 && run.font.weight >= ui::Weight::bold;
  // Labels are black or white, and translucent except with Increase Contrast.
  const bool isInk = run.color.alpha < 1 || run.color.red == 0 || run.color.red == 1;
  const bool isOnFill = run.font.size == 15 && run.font.weight == ui::Weight::semibold;
  const bool isColored = !isInk || run.color.red != run.color.blue || isOnFill;
  return isLarge || (isColored && !increasesContrast) ? 3 : 4.5;
}

class ContrastTest : public PanelFixture {
 protected:
  static constexpr double scale = 3;

  desk::DrawingResources resources;

  ContrastTest() {
    useSmallDisplay();
    attach(2, CGRectMake(720, 0, 80, 620), "Side", false);
    desk::setDockAutoHide(machine, true);
    machine.advance(2);
  }

  /// In pixels.
  struct Area {
    int left;
    int top;
    int right;
    int bottom;
  };

  /// The greatest contrast of a pixel in the area with the median pixel just above and below it.
  [[nodiscard]] static double contrastIn(cairo_surface_t* surface, const Area& area) {
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
    showroom::DesktopPainter painter(resources);
    showroom::DesktopScene scene(machine, application);
    scene.onlySurface = surface;
    const desk::SurfacePointer picture =
        showroom::renderDesktop(painter, scene, showroom::DesktopStyle::exact, scale);
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
      const double reached = contrastIn(picture.get(), area);
      EXPECT_GE(reached, minimumContrast(run, machine.appearance.increasesContrast))
          << "\"" << run.line << "\" " << where;
    }
  }
};

// This mode shows a selected card, an active pill and the primary button in the accent colour.
TEST_F(ContrastTest, OfTheMainPanelInEveryAccentColour) {
  openMain();
  model().toggleHideDockOnAllDisplays();
  for (const bool increasesContrast : {false, true}) {
    for (const Accent& accent : accents) {
      machine.appearance.increasesContrast = increasesContrast;
      machine.appearance.accent = accent;
      const std::string name = std::to_string(accent.red) + "," + std::to_string(accent.green) +
                               "," + std::to_string(accent.blue) +
                               (increasesContrast ? ", more contrast" : "");
      // The backgrounds that are closest to the texts.
      machine.appearance.isDark = true;
      machine.appearance.wallpaper = Wallpaper::white;
      machine.advance(1);
      expectReadable(mainPanel, name + ", dark");
      machine.appearance.isDark = false;
      machine.appearance.wallpaper = Wallpaper::black;
      machine.advance(1);
      expectReadable(mainPanel, name + ", light");
    }
  }
}

}  // namespace
}  // namespace orvane
