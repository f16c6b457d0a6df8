// The attributes of a node: numbers that can be animated. An element writes their targets in the
// build pass, and reads their values at a time in the same order.
#pragma once

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "Orvane/ui/draw/Fill.hpp"
#include "Orvane/ui/draw/Shadow.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

struct AttributeWriter {
  const Appearance& appearance;
  const ColorResolver& resolver;
  std::vector<double> values = {};

  /// Infinity and values that are not numbers count as zero.
  void numbers(std::initializer_list<double> added) {
    for (const double value : added) {
      values.push_back(std::isfinite(value) ? value : 0);
    }
  }
  void color(const Color& color) {
    const Rgba resolved = color.resolve(appearance, resolver);
    numbers({resolved.red, resolved.green, resolved.blue, resolved.alpha});
  }
  void fill(const Fill& fill) {
    numbers({fill.start.x, fill.start.y, fill.end.x, fill.end.y});
    for (const FillStop& stop : fill.stops) {
      color(stop.color);
      numbers({stop.location});
    }
  }
  void shadow(const Shadow& shadow) {
    color(shadow.color);
    numbers({shadow.radius, shadow.x, shadow.y});
  }
};

/// Calls within braces are made in their order.
struct AttributeReader {
  const Node& node;
  double now;
  std::size_t next = 0;

  double number() { return next < node.attributes.size() ? node.attributes[next++].at(now) : 0; }
  /// From 0 to 1, even while a spring overshoots.
  double fraction() { return std::clamp(number(), 0.0, 1.0); }
  Rgba color() { return {fraction(), fraction(), fraction(), fraction()}; }
  /// The fill that was written, in the rectangle that it paints.
  Paint fill(const Fill& written, const Rect& rect) {
    const UnitPoint start{number(), number()};
    const UnitPoint end{number(), number()};
    Paint paint{.start = start.in(rect), .end = end.in(rect)};
    for (std::size_t index = 0; index < written.stops.size(); ++index) {
      paint.stops.push_back({color(), fraction()});
    }
    return paint;
  }
  PaintShadow shadow() { return {color(), std::max(0.0, number()), {number(), number()}}; }
};

}  // namespace orvane::ui
