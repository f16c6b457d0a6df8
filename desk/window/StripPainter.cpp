// Keys at the left in two rows, figures at the right, a line of text below.
#include "desk/window/StripPainter.hpp"

#include <algorithm>
#include <cmath>

namespace orvane::desk {

namespace {

struct Colors {
  ui::Rgba ground;
  ui::Rgba line;
  ui::Rgba ink;
  ui::Rgba quiet;
  ui::Rgba cap;
  ui::Rgba capRim;
  ui::Rgba on;
};

constexpr Colors lightColors{{0.985, 0.985, 0.99, 1}, {0, 0, 0, 0.12}, {0, 0, 0, 0.85},
                             {0, 0, 0, 0.58},         {1, 1, 1, 1},    {0, 0, 0, 0.2},
                             {0, 0.42, 0.9, 1}};
constexpr Colors darkColors{{0.125, 0.13, 0.15, 1}, {1, 1, 1, 0.12},       {1, 1, 1, 0.9},
                            {1, 1, 1, 0.6},         {0.22, 0.23, 0.26, 1}, {1, 1, 1, 0.2},
                            {0.16, 0.56, 1, 1}};

constexpr double margin = 20;
constexpr double capSize = 26;
constexpr double rowHeight = 40;
constexpr double firstRow = 14;
constexpr double figureWidth = 132;
constexpr std::size_t keyColumns = 5;
constexpr std::size_t figureColumns = 2;

/// Cuts a text that is too wide, with an ellipsis at its end.
std::string fitted(DrawingResources& resources, std::string text, const ui::Font& font,
                   double width) {
  if (resources.shaper.measure(text, font).width <= width) {
    return text;
  }
  while (!text.empty()) {
    // A whole character: its last byte and, before it, what continues it in UTF-8.
    while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0U) == 0x80U) {
      text.pop_back();
    }
    if (!text.empty()) {
      text.pop_back();
    }
    if (resources.shaper.measure(text + "\u2026", font).width <= width) {
      break;
    }
  }
  return text + "\u2026";
}

class Painter {
 public:
  Painter(CairoCanvas& canvas, DrawingResources& resources, const Colors& colors)
      : canvas_(canvas), resources_(resources), colors_(colors) {}

  void key(const StripKey& key, ui::Point at, double width) {
    const ui::Rect cap{at.x, at.y + 3, capSize, capSize};
    const ui::Shape shape = ui::Shape::roundedRectangle(cap, 6);
    canvas_.shadow(shape, {{0, 0, 0, 0.16}, 2, {0, 1}});
    canvas_.fill(shape, ui::Paint::solid(key.isOn ? colors_.on : colors_.cap));
    canvas_.stroke(shape.inset(0.5),
                   ui::Paint::solid(key.isOn ? ui::Rgba{1, 1, 1, 0.2} : colors_.capRim), 1);
    const ui::Font letter = ui::Font::system(13, ui::Weight::semibold);
    const double letterWidth = resources_.shaper.measure(key.key, letter).width;
    canvas_.text(key.key, letter, key.isOn ? ui::Rgba{1, 1, 1, 1} : colors_.ink,
                 {cap.center().x - letterWidth / 2, cap.center().y + 4.7});
    const double textX = cap.right() + 9;
    const double room = at.x + width - textX - 6;
    text(key.label, ui::Font::system(12, ui::Weight::medium), colors_.ink, {textX, at.y + 14},
         room);
    text(key.state, ui::Font::system(11), key.isOn ? colors_.on : colors_.quiet, {textX, at.y + 29},
         room);
  }

  void figure(const StripFigure& figure, ui::Point at) {
    text(figure.label, ui::Font::system(11), colors_.quiet, {at.x, at.y + 12}, figureWidth - 10);
    text(figure.value, ui::Font::system(14, ui::Weight::semibold), colors_.ink, {at.x, at.y + 29},
         figureWidth - 10);
  }

  double text(const std::string& line, const ui::Font& font, const ui::Rgba& color, ui::Point at,
              double room) {
    const std::string shown = fitted(resources_, line, font, std::max(room, 0.0));
    canvas_.text(shown, font, color, at);
    return resources_.shaper.measure(shown, font).width;
  }

 private:
  CairoCanvas& canvas_;
  DrawingResources& resources_;
  const Colors& colors_;
};

}  // namespace

void paintStrip(CairoCanvas& canvas, DrawingResources& resources, const ui::Rect& rect,
                const StripContent& content) {
  const Colors& colors = content.isDark ? darkColors : lightColors;
  Painter painter(canvas, resources, colors);
  canvas.fill(ui::Shape::rectangle(rect), ui::Paint::solid(colors.ground));
  canvas.fill(ui::Shape::rectangle({rect.x, rect.y, rect.width, 1}), ui::Paint::solid(colors.line));

  const double figuresX = rect.right() - margin - figureColumns * figureWidth;
  const double keyWidth = (figuresX - 24 - rect.x - margin) / keyColumns;
  for (std::size_t index = 0; index < content.keys.size(); ++index) {
    const auto column = static_cast<double>(index % keyColumns);
    const auto row = static_cast<double>(index / keyColumns);
    painter.key(content.keys[index],
                {rect.x + margin + column * keyWidth, rect.y + firstRow + row * rowHeight},
                keyWidth);
  }
  canvas.fill(ui::Shape::rectangle({figuresX - 24, rect.y + firstRow, 1, 2 * rowHeight - 8}),
              ui::Paint::solid(colors.line));
  for (std::size_t index = 0; index < content.figures.size(); ++index) {
    const auto column = static_cast<double>(index % figureColumns);
    const auto row = static_cast<double>(index / figureColumns);
    painter.figure(content.figures[index],
                   {figuresX + column * figureWidth, rect.y + firstRow + row * rowHeight});
  }

  const double baseline = rect.bottom() - 14;
  const ui::Font small = ui::Font::system(11);
  const double used =
      painter.text(content.hint, small, colors.quiet, {rect.x + margin, baseline}, rect.width / 2);
  const double room = rect.width - 2 * margin - used - 40;
  const double width = std::min(resources.shaper.measure(content.message, small).width, room);
  painter.text(content.message, small, colors.quiet, {rect.right() - margin - width, baseline},
               room + 1);
}

}  // namespace orvane::desk
