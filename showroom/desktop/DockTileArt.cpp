// Each tile is a plate with a gradient and a sign, in a square of 100 units.
#include "showroom/desktop/DockTileArt.hpp"

#include <array>
#include <numbers>
#include <string>

#include "desk/canvas/CairoPointers.hpp"

namespace orvane::showroom {

namespace {

enum class Sign { folder, symbol, calendar, landscape, bars, prompt, bin };

struct Tile {
  Sign sign;
  const char* symbol;
  ui::Rgba top;
  ui::Rgba bottom;
  bool isRunning;
};

constexpr ui::Rgba tone(int red, int green, int blue) {
  return {red / 255.0, green / 255.0, blue / 255.0, 1};
}

constexpr ui::Rgba white{1, 1, 1, 1};

const std::array<Tile, 10> tiles{{
    {Sign::folder, "", tone(112, 190, 250), tone(38, 128, 232), true},
    {Sign::symbol, "globe", tone(92, 214, 208), tone(18, 140, 160), true},
    {Sign::symbol, "envelope", tone(126, 168, 255), tone(66, 92, 226), false},
    {Sign::calendar, "", tone(255, 255, 255), tone(238, 240, 244), false},
    {Sign::symbol, "doc.text", tone(255, 214, 110), tone(244, 164, 44), false},
    {Sign::landscape, "", tone(255, 190, 150), tone(240, 120, 140), false},
    {Sign::bars, "", tone(238, 120, 196), tone(168, 64, 190), true},
    {Sign::prompt, "", tone(70, 74, 86), tone(28, 30, 38), false},
    {Sign::symbol, "gearshape.fill", tone(178, 184, 194), tone(112, 118, 130), false},
    {Sign::bin, "", white, white, false},
}};

constexpr double unit = 100;

/// Paints in a context in which the square has 100 units on each side.
template <typename Paint>
void paintInUnits(desk::CairoCanvas& canvas, const ui::Rect& square, const Paint& paint) {
  canvas.save();
  canvas.transform({square.width / unit, square.x, square.y});
  cairo_new_path(canvas.context());
  paint(canvas.context());
  canvas.restore();
}

void setColor(cairo_t* context, const ui::Rgba& color) {
  cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
}

void addRoundedRectangle(cairo_t* context, double x, double y, double width, double height,
                         double radius) {
  constexpr double quarter = std::numbers::pi / 2;
  cairo_new_sub_path(context);
  cairo_arc(context, x + width - radius, y + radius, radius, -quarter, 0);
  cairo_arc(context, x + width - radius, y + height - radius, radius, 0, quarter);
  cairo_arc(context, x + radius, y + height - radius, radius, quarter, 2 * quarter);
  cairo_arc(context, x + radius, y + radius, radius, 2 * quarter, 3 * quarter);
  cairo_close_path(context);
}

void paintPlate(desk::CairoCanvas& canvas, const ui::Rect& square, const Tile& tile) {
  const ui::Shape plate = ui::Shape::roundedRectangle(square, square.width * 0.235);
  canvas.shadow(plate, {{0, 0, 0, 0.22}, square.width * 0.1, {0, square.width * 0.035}});
  canvas.fill(
      plate,
      {{{tile.top, 0}, {tile.bottom, 1}}, {square.x, square.y}, {square.x, square.bottom()}});
  // The rim is lit from above.
  canvas.stroke(plate.inset(0.5),
                {{{{1, 1, 1, 0.45}, 0}, {{1, 1, 1, 0.05}, 0.5}, {{0, 0, 0, 0.1}, 1}},
                 {square.x, square.y},
                 {square.x, square.bottom()}},
                1);
}

void paintFolder(cairo_t* context) {
  setColor(context, {1, 1, 1, 0.72});
  addRoundedRectangle(context, 20, 27, 34, 26, 6);
  cairo_fill(context);
  addRoundedRectangle(context, 20, 33, 60, 30, 6);
  cairo_fill(context);
  setColor(context, white);
  addRoundedRectangle(context, 20, 42, 60, 32, 7);
  cairo_fill(context);
}

void paintLandscape(cairo_t* context) {
  setColor(context, {1, 0.96, 0.84, 1});
  cairo_arc(context, 66, 37, 10, 0, 2 * std::numbers::pi);
  cairo_fill(context);
  addRoundedRectangle(context, 0, 0, unit, unit, 23.5);
  cairo_clip(context);
  setColor(context, tone(150, 82, 150));
  cairo_move_to(context, 0, 74);
  cairo_curve_to(context, 22, 40, 34, 40, 54, 68);
  cairo_curve_to(context, 70, 52, 82, 52, unit, 76);
  cairo_line_to(context, unit, unit);
  cairo_line_to(context, 0, unit);
  cairo_fill(context);
  setColor(context, tone(92, 52, 120));
  cairo_move_to(context, 0, 88);
  cairo_curve_to(context, 30, 70, 60, 72, unit, 90);
  cairo_line_to(context, unit, unit);
  cairo_line_to(context, 0, unit);
  cairo_fill(context);
}

void paintBars(cairo_t* context) {
  setColor(context, white);
  constexpr std::array<double, 5> heights{22, 44, 58, 34, 18};
  double x = 22;
  for (const double height : heights) {
    addRoundedRectangle(context, x, 50 - height / 2, 8, height, 4);
    cairo_fill(context);
    x += 12;
  }
}

void paintPrompt(cairo_t* context) {
  setColor(context, tone(122, 226, 170));
  cairo_set_line_width(context, 7);
  cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
  cairo_move_to(context, 24, 34);
  cairo_line_to(context, 40, 50);
  cairo_line_to(context, 24, 66);
  cairo_stroke(context);
  setColor(context, {1, 1, 1, 0.9});
  cairo_move_to(context, 50, 66);
  cairo_line_to(context, 74, 66);
  cairo_stroke(context);
}

void paintBin(cairo_t* context) {
  const desk::PatternPointer shade(cairo_pattern_create_linear(0, 20, 0, 92));
  cairo_pattern_add_color_stop_rgba(shade.get(), 0, 1, 1, 1, 0.95);
  cairo_pattern_add_color_stop_rgba(shade.get(), 1, 0.82, 0.85, 0.9, 0.9);
  cairo_set_source(context, shade.get());
  cairo_move_to(context, 20, 26);
  cairo_line_to(context, 80, 26);
  cairo_line_to(context, 73, 86);
  cairo_curve_to(context, 72, 91, 69, 93, 65, 93);
  cairo_line_to(context, 35, 93);
  cairo_curve_to(context, 31, 93, 28, 91, 27, 86);
  cairo_close_path(context);
  cairo_fill(context);
  setColor(context, {0.42, 0.47, 0.56, 0.55});
  cairo_set_line_width(context, 4);
  cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
  for (const double x : {39.0, 50.0, 61.0}) {
    cairo_move_to(context, x, 42);
    cairo_line_to(context, 50 + (x - 50) * 0.85, 80);
    cairo_stroke(context);
  }
  setColor(context, {1, 1, 1, 1});
  addRoundedRectangle(context, 14, 15, 72, 11, 5.5);
  cairo_fill(context);
  setColor(context, {0.55, 0.6, 0.68, 0.6});
  cairo_set_line_width(context, 1.6);
  addRoundedRectangle(context, 14, 15, 72, 11, 5.5);
  cairo_stroke(context);
}

void paintCalendar(desk::CairoCanvas& canvas, const ui::Rect& square, int dayOfMonth) {
  paintInUnits(canvas, square, [](cairo_t* context) {
    addRoundedRectangle(context, 0, 0, unit, unit, 23.5);
    cairo_clip(context);
    setColor(context, tone(255, 122, 74));
    cairo_rectangle(context, 0, 0, unit, 27);
    cairo_fill(context);
    setColor(context, {1, 1, 1, 0.85});
    for (const double x : {30.0, 70.0}) {
      cairo_arc(context, x, 13.5, 4, 0, 2 * std::numbers::pi);
      cairo_fill(context);
    }
  });
  // Digits of the font are about 0.62 em wide and 0.73 em high.
  const std::string text = std::to_string(dayOfMonth);
  const ui::Font font = ui::Font::system(square.height * 0.5, ui::Weight::medium);
  const double width = font.size * 0.62 * static_cast<double>(text.size());
  canvas.text(text, font, tone(58, 60, 68),
              {square.center().x - width / 2, square.y + square.height * 0.63 + font.size * 0.36});
}

}  // namespace

std::size_t dockTileCount() {
  return tiles.size();
}

bool isDockTileRunning(std::size_t index) {
  return index < tiles.size() && tiles[index].isRunning;
}

void paintDockTile(desk::CairoCanvas& canvas, std::size_t index, const ui::Rect& square,
                   int dayOfMonth) {
  if (index >= tiles.size()) {
    return;
  }
  const Tile& tile = tiles[index];
  if (tile.sign != Sign::bin) {
    paintPlate(canvas, square, tile);
  }
  switch (tile.sign) {
    case Sign::symbol:
      return canvas.symbol(tile.symbol, ui::Font::system(square.width * 0.5, ui::Weight::medium),
                           white, square);
    case Sign::calendar:
      return paintCalendar(canvas, square, dayOfMonth);
    case Sign::folder:
      return paintInUnits(canvas, square, paintFolder);
    case Sign::landscape:
      return paintInUnits(canvas, square, paintLandscape);
    case Sign::bars:
      return paintInUnits(canvas, square, paintBars);
    case Sign::prompt:
      return paintInUnits(canvas, square, paintPrompt);
    case Sign::bin:
      return paintInUnits(canvas, square, paintBin);
  }
}

}  // namespace orvane::showroom
