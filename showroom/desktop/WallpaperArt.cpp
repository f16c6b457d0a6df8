// The landscape has a sky, a sun or moon, and ridges that fade with distance.
#include "showroom/desktop/WallpaperArt.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

#include "desk/canvas/CairoPointers.hpp"

namespace orvane::showroom {

namespace {

/// The size of the landscape in units. It is scaled to cover the screen and cropped.
constexpr double sheetWidth = 1600;
constexpr double sheetHeight = 1000;

struct Tone {
  int red;
  int green;
  int blue;
};

constexpr double byteRange = 255;

void setTone(cairo_t* context, const Tone& tone, double alpha = 1) {
  cairo_set_source_rgba(context, tone.red / byteRange, tone.green / byteRange,
                        tone.blue / byteRange, alpha);
}

void addStop(cairo_pattern_t* pattern, double place, const Tone& tone, double alpha = 1) {
  cairo_pattern_add_color_stop_rgba(pattern, place, tone.red / byteRange, tone.green / byteRange,
                                    tone.blue / byteRange, alpha);
}

/// One range of hills: the height and waves of its outline, and its colours from crest to foot.
struct Ridge {
  double height;
  double swing;
  double waves;
  double phase;
  Tone crest;
  Tone foot;
};

struct Palette {
  std::array<Tone, 4> sky;
  Tone light;
  double lightX;
  double lightY;
  double lightRadius;
  double glowRadius;
  std::array<Ridge, 5> ridges;
};

constexpr Palette day{{{{86, 137, 197}, {139, 178, 217}, {214, 216, 222}, {248, 219, 196}}},
                      {255, 246, 228},
                      1130,
                      500,
                      54,
                      620,
                      {{{590, 62, 1.6, 0.4, {178, 186, 208}, {220, 210, 212}},
                        {660, 70, 1.9, 2.3, {142, 162, 194}, {190, 196, 210}},
                        {740, 66, 1.4, 4.2, {104, 136, 172}, {150, 174, 194}},
                        {820, 58, 2.1, 1.1, {66, 108, 144}, {104, 144, 168}},
                        {905, 46, 1.5, 5.3, {34, 78, 112}, {52, 98, 128}}}}};

constexpr Palette night{{{{12, 17, 42}, {27, 34, 74}, {58, 54, 104}, {112, 82, 128}}},
                        {236, 236, 250},
                        1160,
                        250,
                        34,
                        360,
                        {{{590, 62, 1.6, 0.4, {78, 70, 118}, {98, 80, 126}},
                          {660, 70, 1.9, 2.3, {58, 58, 104}, {76, 70, 116}},
                          {740, 66, 1.4, 4.2, {40, 46, 88}, {54, 58, 100}},
                          {820, 58, 2.1, 1.1, {25, 33, 68}, {36, 44, 80}},
                          {905, 46, 1.5, 5.3, {13, 20, 46}, {20, 28, 56}}}}};

void paintSky(cairo_t* context, const Palette& palette) {
  const desk::PatternPointer sky(cairo_pattern_create_linear(0, 0, 0, 700));
  addStop(sky.get(), 0, palette.sky[0]);
  addStop(sky.get(), 0.4, palette.sky[1]);
  addStop(sky.get(), 0.78, palette.sky[2]);
  addStop(sky.get(), 1, palette.sky[3]);
  cairo_set_source(context, sky.get());
  cairo_paint(context);
}

/// Deterministic numbers in [0, 1): a linear congruential generator with the constants of Numerical
/// Recipes.
class Scatter {
 public:
  explicit Scatter(std::uint32_t seed) : state_(seed) {}
  double next() {
    state_ = state_ * 1664525U + 1013904223U;
    constexpr double range = 16777216;
    return (state_ >> 8U) / range;
  }

 private:
  std::uint32_t state_;
};

void paintStars(cairo_t* context) {
  Scatter scatter(20260101);
  for (int star = 0; star < 130; ++star) {
    const double x = scatter.next() * sheetWidth;
    const double y = scatter.next() * 520;
    const double radius = 0.5 + 0.9 * scatter.next();
    const double alpha = (0.25 + 0.55 * scatter.next()) * (1 - y / 620);
    setTone(context, {230, 234, 255}, alpha);
    cairo_arc(context, x, y, radius, 0, 2 * std::numbers::pi);
    cairo_fill(context);
  }
}

void paintLight(cairo_t* context, const Palette& palette) {
  const desk::PatternPointer glow(cairo_pattern_create_radial(
      palette.lightX, palette.lightY, 0, palette.lightX, palette.lightY, palette.glowRadius));
  // The opacity falls with the square of the distance to the rim, so that no edge is visible.
  addStop(glow.get(), 0, palette.light, 0.5);
  addStop(glow.get(), 0.15, palette.light, 0.36);
  addStop(glow.get(), 0.3, palette.light, 0.245);
  addStop(glow.get(), 0.5, palette.light, 0.125);
  addStop(glow.get(), 0.7, palette.light, 0.045);
  addStop(glow.get(), 0.85, palette.light, 0.011);
  addStop(glow.get(), 1, palette.light, 0);
  cairo_set_source(context, glow.get());
  cairo_paint(context);
  setTone(context, palette.light, 0.96);
  cairo_arc(context, palette.lightX, palette.lightY, palette.lightRadius, 0, 2 * std::numbers::pi);
  cairo_fill(context);
}

/// The sum of three waves of unrelated lengths, so that no repetition is visible.
double crestAt(const Ridge& ridge, double x) {
  const double turn = 2 * std::numbers::pi * x / sheetWidth;
  return ridge.height - ridge.swing * (0.62 * std::sin(turn * ridge.waves + ridge.phase) +
                                       0.27 * std::sin(turn * ridge.waves * 2.3 + ridge.phase * 3) +
                                       0.11 * std::sin(turn * ridge.waves * 5.1 + ridge.phase * 7));
}

void paintRidge(cairo_t* context, const Ridge& ridge) {
  constexpr double step = 4;
  cairo_new_path(context);
  cairo_move_to(context, 0, sheetHeight);
  for (double x = 0; x <= sheetWidth; x += step) {
    cairo_line_to(context, x, crestAt(ridge, x));
  }
  cairo_line_to(context, sheetWidth, sheetHeight);
  cairo_close_path(context);
  const desk::PatternPointer shade(
      cairo_pattern_create_linear(0, ridge.height - ridge.swing, 0, ridge.height + 170));
  addStop(shade.get(), 0, ridge.crest);
  addStop(shade.get(), 1, ridge.foot);
  cairo_set_source(context, shade.get());
  cairo_fill(context);
}

void paintLandscape(cairo_t* context, const Palette& palette, bool hasStars, double width,
                    double height) {
  const double scale = std::max(width / sheetWidth, height / sheetHeight);
  // Cropped equally at both sides, and more from the sky than from the ground.
  cairo_translate(context, (width - sheetWidth * scale) / 2, (height - sheetHeight * scale) * 0.7);
  cairo_scale(context, scale, scale);
  paintSky(context, palette);
  if (hasStars) {
    paintStars(context);
  }
  paintLight(context, palette);
  for (const Ridge& ridge : palette.ridges) {
    paintRidge(context, ridge);
  }
}

/// Triangles in strong colours, as a worst case for legibility.
void paintBusy(cairo_t* context, double width, double height) {
  constexpr std::array<Tone, 8> tones{{{236, 64, 90},
                                       {250, 176, 40},
                                       {252, 236, 110},
                                       {56, 178, 120},
                                       {44, 132, 220},
                                       {124, 74, 200},
                                       {250, 250, 250},
                                       {24, 24, 34}}};
  constexpr int columns = 24;
  const double side = width / columns;
  Scatter scatter(7);
  for (double y = 0; y < height; y += side) {
    for (int column = 0; column < columns; ++column) {
      const double x = column * side;
      for (const bool upper : {true, false}) {
        const auto tone = static_cast<std::size_t>(scatter.next() * tones.size());
        setTone(context, tones[std::min(tone, tones.size() - 1)]);
        cairo_move_to(context, x, upper ? y : y + side);
        cairo_line_to(context, x + side, upper ? y : y + side);
        cairo_line_to(context, upper ? x : x + side, upper ? y + side : y);
        cairo_close_path(context);
        cairo_fill(context);
      }
    }
  }
}

}  // namespace

void paintWallpaper(cairo_t* context, desk::Appearance::Wallpaper wallpaper, bool isDark,
                    double width, double height) {
  cairo_save(context);
  cairo_rectangle(context, 0, 0, width, height);
  cairo_clip(context);
  switch (wallpaper) {
    case desk::Appearance::Wallpaper::standard:
      paintLandscape(context, isDark ? night : day, isDark, width, height);
      break;
    case desk::Appearance::Wallpaper::white:
      setTone(context, {255, 255, 255});
      cairo_paint(context);
      break;
    case desk::Appearance::Wallpaper::black:
      setTone(context, {0, 0, 0});
      cairo_paint(context);
      break;
    case desk::Appearance::Wallpaper::busy:
      setTone(context, {24, 24, 34});
      cairo_paint(context);
      paintBusy(context, width, height);
      break;
  }
  cairo_restore(context);
}

}  // namespace orvane::showroom
