// A call is one line: name, shape, paint. Numbers have at most three decimals.
#include "tests/support/RecordingCanvas.hpp"

#include <cmath>
#include <cstdio>

namespace orvane::ui {

namespace {

std::string number(double value) {
  // Adding zero makes a negative zero positive.
  const double rounded = std::round(value * 1000) / 1000 + 0.0;
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.10g", rounded);
  return buffer;
}

std::string describe(const Rect& rect) {
  return number(rect.x) + " " + number(rect.y) + " " + number(rect.width) + " " +
         number(rect.height);
}

std::string describe(const Shape& shape) {
  switch (shape.kind) {
    case Shape::Kind::rectangle:
      return "rectangle(" + describe(shape.rect) + ")";
    case Shape::Kind::roundedRectangle:
      return "rounded(" + describe(shape.rect) + " r" + number(shape.cornerRadius) +
             (shape.cornerStyle == CornerStyle::continuous ? " continuous)" : ")");
    case Shape::Kind::capsule:
      return "capsule(" + describe(shape.rect) + ")";
    case Shape::Kind::circle:
    case Shape::Kind::ellipse:
      return "ellipse(" + describe(shape.rect) + ")";
  }
  return {};
}

std::string describe(const Rgba& color) {
  return "rgba(" + number(color.red) + " " + number(color.green) + " " + number(color.blue) + " " +
         number(color.alpha) + ")";
}

std::string describe(const Paint& paint) {
  if (paint.isSolid()) {
    return describe(paint.stops.front().color);
  }
  std::string result = "gradient(" + number(paint.start.x) + " " + number(paint.start.y) + " to " +
                       number(paint.end.x) + " " + number(paint.end.y);
  for (const PaintStop& stop : paint.stops) {
    result += ", " + number(stop.location) + " " + describe(stop.color);
  }
  return result + ")";
}

std::string describe(const PaintShadow& shadow) {
  return describe(shadow.color) + " radius " + number(shadow.radius) + " offset " +
         number(shadow.offset.x) + " " + number(shadow.offset.y);
}

std::string describe(const Font& font) {
  return number(font.size) + "/" + std::to_string(static_cast<int>(font.weight)) +
         (font.tracking == 0 ? "" : "/" + number(font.tracking));
}

}  // namespace

std::string RecordingCanvas::text() const {
  std::string result;
  for (const std::string& line : lines_) {
    result += line + "\n";
  }
  return result;
}

void RecordingCanvas::write(const std::string& line) {
  lines_.push_back(std::string(static_cast<std::size_t>(depth_ > 0 ? depth_ * 2 : 0), ' ') + line);
}

void RecordingCanvas::save() {
  write("save");
  ++depth_;
}

void RecordingCanvas::restore() {
  --depth_;
  write("restore");
}

void RecordingCanvas::transform(const Transform& transform) {
  write("transform scale " + number(transform.scale) + " translate " + number(transform.x) + " " +
        number(transform.y));
}

void RecordingCanvas::clip(const Shape& shape) {
  write("clip " + describe(shape));
}

void RecordingCanvas::fill(const Shape& shape, const Paint& paint) {
  write("fill " + describe(shape) + " " + describe(paint));
}

void RecordingCanvas::stroke(const Shape& shape, const Paint& paint, double lineWidth) {
  write("stroke " + describe(shape) + " " + describe(paint) + " width " + number(lineWidth));
}

void RecordingCanvas::shadow(const Shape& shape, const PaintShadow& shadow) {
  write("shadow " + describe(shape) + " " + describe(shadow));
}

void RecordingCanvas::beginLayer(const Rect& bounds, double opacity,
                                 const std::optional<PaintShadow>& shadow) {
  write("layer (" + describe(bounds) + ") opacity " + number(opacity) +
        (shadow ? " shadow " + describe(*shadow) : ""));
  ++depth_;
}

void RecordingCanvas::endLayer() {
  --depth_;
  write("end");
}

void RecordingCanvas::text(const std::string& line, const Font& font, const Rgba& color,
                           Point baseline) {
  write("text \"" + line + "\" " + describe(font) + " " + describe(color) + " at " +
        number(baseline.x) + " " + number(baseline.y));
}

void RecordingCanvas::image(const std::string& name, const Rect& destination) {
  write("image " + name + " (" + describe(destination) + ")");
}

void RecordingCanvas::symbol(const std::string& name, const Font& font, const Rgba& color,
                             const Rect& rect) {
  write("symbol " + name + " " + describe(font) + " " + describe(color) + " (" + describe(rect) +
        ")");
}

}  // namespace orvane::ui
