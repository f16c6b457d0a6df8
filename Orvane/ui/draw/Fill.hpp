// What an area is filled with: one colour or a linear gradient, semantic until it is drawn.
#pragma once

#include <initializer_list>
#include <vector>

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/draw/Paint.hpp"
#include "Orvane/ui/layout/UnitPoint.hpp"

namespace orvane::ui {

struct GradientStop {
  Color color;
  // From 0 (start) to 1 (end).
  double location = 0;

  friend bool operator==(const GradientStop&, const GradientStop&) = default;
};

// A linear gradient between two places of the rectangle it fills, any number of stops.
struct Gradient {
  std::vector<GradientStop> stops;
  UnitPoint start = UnitPoint::top();
  UnitPoint end = UnitPoint::bottom();

  // Evenly spaced colours, by default from top to bottom.
  static Gradient linear(std::initializer_list<Color> colors, UnitPoint start = UnitPoint::top(),
                         UnitPoint end = UnitPoint::bottom());
  // The gentle gradient the system makes of one colour: a lighter top over the colour itself.
  static Gradient system(const Color& color);

  Gradient opacity(double factor) const;

  friend bool operator==(const Gradient&, const Gradient&) = default;
};

class Fill {
 public:
  Fill(const Color& color) : gradient_{{{color, 0}}} {}        // NOLINT: meant to convert
  Fill(Gradient gradient) : gradient_(std::move(gradient)) {}  // NOLINT: meant to convert

  const Gradient& gradient() const { return gradient_; }
  Fill opacity(double factor) const { return {gradient_.opacity(factor)}; }

  // The paint for a rectangle; a fill without stops is clear, one with a single stop is solid.
  Paint resolve(const Rect& rect, const Appearance& appearance,
                const ColorResolver& resolver) const;

  friend bool operator==(const Fill&, const Fill&) = default;

 private:
  Gradient gradient_;
};

}  // namespace orvane::ui
