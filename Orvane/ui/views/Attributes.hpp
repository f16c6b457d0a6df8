// The attributes of a node: numbers that can be animated. An element writes their targets in the
// build pass, and reads their values at a time in the same order.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "Orvane/ui/draw/Fill.hpp"
#include "Orvane/ui/draw/Shadow.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

class AttributeWriter {
 public:
  AttributeWriter(const Appearance& appearance, const ColorResolver& resolver)
      : appearance_(appearance), resolver_(resolver) {}

  /// Infinity and values that are not numbers count as zero.
  void number(double value) { values_.push_back(std::isfinite(value) ? value : 0); }
  void color(const Color& color) {
    const Rgba resolved = color.resolve(appearance_, resolver_);
    for (const double value : {resolved.red, resolved.green, resolved.blue, resolved.alpha}) {
      number(value);
    }
  }
  void fill(const Fill& fill) {
    for (const double value : {fill.start.x, fill.start.y, fill.end.x, fill.end.y}) {
      number(value);
    }
    for (const FillStop& stop : fill.stops) {
      number(stop.location);
      color(stop.color);
    }
  }
  void shadow(const Shadow& shadow) {
    color(shadow.color);
    number(shadow.radius);
    number(shadow.x);
    number(shadow.y);
  }

  [[nodiscard]] const std::vector<double>& values() const { return values_; }

 private:
  const Appearance& appearance_;
  const ColorResolver& resolver_;
  std::vector<double> values_;
};

class AttributeReader {
 public:
  AttributeReader(const Node& node, double now) : node_(node), now_(now) {}

  double number() {
    return next_ < node_.attributes.size() ? node_.attributes[next_++].at(now_) : 0;
  }
  /// From 0 to 1, even while a spring overshoots.
  double fraction() { return std::clamp(number(), 0.0, 1.0); }
  Rgba color() {
    const double red = fraction();
    const double green = fraction();
    const double blue = fraction();
    return {red, green, blue, fraction()};
  }
  /// The fill that was written, in the rectangle that it paints.
  Paint fill(const Fill& written, const Rect& rect) {
    UnitPoint start;
    UnitPoint end;
    start.x = number();
    start.y = number();
    end.x = number();
    end.y = number();
    Paint paint{.start = start.in(rect), .end = end.in(rect)};
    for (std::size_t index = 0; index < written.stops.size(); ++index) {
      const double location = fraction();
      paint.stops.push_back({color(), location});
    }
    return paint;
  }
  PaintShadow shadow() {
    const Rgba resolved = color();
    const double radius = std::max(0.0, number());
    const double x = number();
    return {resolved, radius, {x, number()}};
  }

 private:
  const Node& node_;
  double now_;
  std::size_t next_ = 0;
};

}  // namespace orvane::ui
