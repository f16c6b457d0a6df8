// Gradients without stripes: each one alone, and what all of them come to in a window.
#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/panels/main/OrvanePalette.hpp"
#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/ui/draw/StandardColors.hpp"
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

/// How often the values change their direction.
int turnsOf(const std::vector<int>& values) {
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
  static std::vector<std::pair<std::string, ui::Gradient>> gradients(bool isDark) {
    return {{"window", OrvanePalette::windowGradient(isDark)},
            {"highlight", OrvanePalette::windowTopHighlight(isDark)},
            {"panel", OrvanePalette::panelOverlayGradient(isDark)},
            {"settings", SettingsPalette::windowGradient(isDark)},
            {"header", SettingsPalette::headerGradient(isDark)}};
  }

  /// The window with what is behind it, in pixels of its own.
  desk::SurfacePointer picture(const std::string& surface, Appearance::Wallpaper wallpaper) {
    const auto shown = window(surface);
    const CGSize size = shown->frame.size;
    desk::SurfacePointer made(cairo_image_surface_create(CAIRO_FORMAT_ARGB32,
                                                         static_cast<int>(size.width * scale),
                                                         static_cast<int>(size.height * scale)));
    desk::CairoCanvas canvas(made.get(), scale, server().resources());
    desk::paintWallpaper(canvas.context(), wallpaper, machine.appearance.isDark, size.width,
                         size.height);
    const CGPoint corner = server().topLeftOf(*shown);
    canvas.transform(ui::Transform::translation({-corner.x, -corner.y}));
    desk::GlassCache glass;
    desk::paintWindow(canvas, server(), *shown, glass);
    return made;
  }

  /// The most that any colour of a column turns, `x` points from the left, without the ends, where
  /// the corners are.
  static int turnsInColumn(const desk::SurfacePointer& surface, double x) {
    constexpr int corner = 60;
    int most = 0;
    for (std::size_t color = 0; color < 3; ++color) {
      std::vector<int> column;
      for (int y = corner; y < cairo_image_surface_get_height(surface.get()) - corner; ++y) {
        column.push_back(colorsAt(surface, static_cast<int>(x * scale), y)[color]);
      }
      most = std::max(most, turnsOf(column));
    }
    return most;
  }
};

/// What a gradient comes to over a ground, from 0 to 255.
std::array<double, 3> exactColors(const std::vector<ui::PaintStop>& stops, double share,
                                  double ground) {
  std::size_t next = 1;
  while (next + 1 < stops.size() && stops[next].location < share) {
    ++next;
  }
  const auto& [from, start] = stops[next - 1];
  const auto& [to, end] = stops[next];
  const double part = (share - start) / (end - start);
  const double alpha = from.alpha + (to.alpha - from.alpha) * part;
  const auto over = [&](double first, double last) {
    return 255 * ((first + (last - first) * part) * alpha + ground * (1 - alpha));
  };
  return {over(from.red, to.red), over(from.green, to.green), over(from.blue, to.blue)};
}

// The nearest byte everywhere, and so one step at most against the gradient.
TEST_F(GradientsTest, EveryGradientIsTheNearestColourInEachRow) {
  constexpr int height = 1032;
  for (const bool isDark : {false, true}) {
    ui::Appearance appearance;
    appearance.dark = isDark;
    for (const auto& [name, gradient] : gradients(isDark)) {
      ui::Paint paint{{}, {0, 0}, {0, height / scale}};
      for (const ui::GradientStop& stop : gradient.stops) {
        paint.stops.push_back({stop.color.resolve(appearance, ui::standardColor), stop.location});
      }
      desk::DeepSurface deep(1, height);
      desk::CairoCanvas canvas(deep, scale, server().resources());
      canvas.fill(ui::Shape::rectangle({0, 0, 1, height / scale}), paint);
      for (const double ground : {0.0, 15 / 255.0, 128 / 255.0, 248 / 255.0, 1.0}) {
        const desk::SurfacePointer shown(
            cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 1, height));
        desk::CairoCanvas target(shown.get(), scale, server().resources());
        target.fill(ui::Shape::rectangle({0, 0, 1, height / scale}),
                    ui::Paint::solid({ground, ground, ground, 1}));
        target.picture(deep, {0, 0});
        double furthest = 0;
        for (int y = 0; y < height; ++y) {
          const auto exact = exactColors(paint.stops, (y + 0.5) / height, ground);
          const auto colors = colorsAt(shown, 0, y);
          for (std::size_t color = 0; color < colors.size(); ++color) {
            furthest = std::max(furthest, std::abs(colors[color] - exact[color]));
          }
        }
        EXPECT_LT(furthest, 0.55) << name << (isDark ? ", dark" : "") << " over " << ground;
      }
    }
  }
}

// Three gradients with their stops and the shadows of two panels turn a few times; stripes are
// hundreds. A wallpaper behind the glass has slopes of its own.
TEST_F(GradientsTest, AWindowHasNoStripes) {
  openSettings();
  for (const bool isDark : {false, true}) {
    machine.appearance.isDark = isDark;
    for (const auto& [wallpaper, most] : {std::pair{Appearance::Wallpaper::white, 10},
                                          {Appearance::Wallpaper::black, 10},
                                          {Appearance::Wallpaper::standard, 30}}) {
      for (const double x : {6.0, 12.0, 18.0}) {
        EXPECT_LE(turnsInColumn(picture(mainPanel, wallpaper), x), most)
            << x << (isDark ? ", dark" : "");
      }
      EXPECT_LE(turnsInColumn(picture(settingsPanel, wallpaper), 4), most)
          << (isDark ? "dark" : "");
    }
  }
}

}  // namespace
}  // namespace orvane
