// The gradients of a window show no stripes.
#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "desk/canvas/ImageSurface.hpp"
#include "showroom/desktop/WallpaperArt.hpp"
#include "showroom/desktop/WindowArt.hpp"
#include "tests/canvas/PixelFixture.hpp"
#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

using desk::Appearance;

constexpr double scale = 2;

/// The red, green and blue of a pixel.
std::array<int, 3> colorsAt(const desk::SurfacePointer& surface, int x, int y) {
  const desk::Pixel pixel = desk::pixelAt(surface.get(), x, y);
  return {pixel.red, pixel.green, pixel.blue};
}

/// The number of times the values change direction.
int turnCount(const std::vector<int>& values) {
  int turns = 0;
  int direction = 0;
  for (std::size_t index = 1; index < values.size(); ++index) {
    const int step = values[index] - values[index - 1];
    if (step != 0) {
      turns += step * direction < 0 ? 1 : 0;
      direction = step;
    }
  }
  return turns;
}

class GradientsTest : public PanelFixture {
 protected:
  /// The window over its background.
  desk::SurfacePointer picture(const std::string& surface, Appearance::Wallpaper wallpaper) {
    const auto shown = window(surface);
    const CGSize size = shown->frame.size;
    desk::SurfacePointer made = desk::imageSurface({size.width, size.height}, scale);
    desk::CairoCanvas canvas(made.get(), scale, server().resources());
    showroom::paintWallpaper(canvas.context(), wallpaper, machine.appearance.isDark, size.width,
                             size.height);
    const CGPoint corner = server().topLeftOf(*shown);
    canvas.transform(ui::Transform::translation({-corner.x, -corner.y}));
    showroom::GlassCache glass;
    showroom::paintWindow(canvas, server(), *shown, glass);
    return made;
  }

  /// The greatest number of turns of a colour in the column `x` points from the left, between the
  /// corners.
  static int turnCountInColumn(const desk::SurfacePointer& surface, double x) {
    constexpr int corner = 60;
    int greatest = 0;
    for (std::size_t color = 0; color < 3; ++color) {
      std::vector<int> column;
      for (int y = corner; y < cairo_image_surface_get_height(surface.get()) - corner; ++y) {
        column.push_back(colorsAt(surface, static_cast<int>(x * scale), y)[color]);
      }
      greatest = std::max(greatest, turnCount(column));
    }
    return greatest;
  }
};

// Three gradients and the shadows of two panels turn a few times, stripes hundreds of times. A
// wallpaper behind the glass adds turns.
TEST_F(GradientsTest, AWindowHasNoStripes) {
  openSettings();
  for (const bool isDark : {false, true}) {
    machine.appearance.isDark = isDark;
    for (const auto& [wallpaper, limit] : {std::pair{Appearance::Wallpaper::white, 10},
                                           {Appearance::Wallpaper::black, 10},
                                           {Appearance::Wallpaper::standard, 30}}) {
      for (const double x : {6.0, 12.0, 18.0}) {
        EXPECT_LE(turnCountInColumn(picture(mainPanel, wallpaper), x), limit)
            << x << (isDark ? ", dark" : "");
      }
      EXPECT_LE(turnCountInColumn(picture(settingsPanel, wallpaper), 4), limit)
          << (isDark ? "dark" : "");
    }
  }
}

}  // namespace
}  // namespace orvane
