// The fill of a shape: one colour or a linear gradient, semantic until it is drawn.
#pragma once

#include <initializer_list>
#include <utility>
#include <vector>

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/layout/UnitPoint.hpp"

namespace orvane::ui {

struct GradientStop {
  Color color;
  /// From 0 (start) to 1 (end).
  double location = 0;

  friend bool operator==(const GradientStop&, const GradientStop&) = default;
};

/// A linear gradient between two points of the rectangle that it fills, with any number of stops.
struct Gradient {
  std::vector<GradientStop> stops = {};
  UnitPoint start = UnitPoint::top();
  UnitPoint end = UnitPoint::bottom();

  /// Evenly spaced colours.
  [[nodiscard]] static Gradient linear(std::initializer_list<Color> colors,
                                       UnitPoint start = UnitPoint::top(),
                                       UnitPoint end = UnitPoint::bottom());
  /// The system's gradient of one colour, slightly lighter at the top.
  [[nodiscard]] static Gradient system(const Color& color);

  [[nodiscard]] Gradient opacity(double factor) const;

  friend bool operator==(const Gradient&, const Gradient&) = default;
};

class Fill {
 public:
  /// A single stop.
  Fill(const Color& color) : gradient_{.stops = {{color, 0}}} {}  // NOLINT: meant to convert
  Fill(Gradient gradient) : gradient_(std::move(gradient)) {}     // NOLINT: meant to convert

  [[nodiscard]] const Gradient& gradient() const { return gradient_; }
  [[nodiscard]] Fill opacity(double factor) const { return {gradient_.opacity(factor)}; }

  friend bool operator==(const Fill&, const Fill&) = default;

 private:
  Gradient gradient_;
};

}  // namespace orvane::ui
