// Shapes as views.
#pragma once

#include "Orvane/ui/draw/Fill.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

/// Takes the proposed size. Fills and strokes are painted in the order of the calls; without any,
/// the shape is invisible.
class [[nodiscard]] ShapeView : public View {
 public:
  explicit ShapeView(const Shape& shape);

  ShapeView fill(const Fill& fill) const;
  /// A line centred on the outline, or inside of it.
  ShapeView stroke(const Fill& fill, double lineWidth = 1) const;
  ShapeView strokeBorder(const Fill& fill, double lineWidth = 1) const;
  /// The shadow that the opaque shape would cast, painted only around it, so that it does not
  /// darken a translucent fill. (View::shadow is cast by what is painted.)
  ShapeView castShadow(const Shadow& shadow) const;

 private:
  explicit ShapeView(const View& view) : View(view) {}
};

struct [[nodiscard]] Rectangle : ShapeView {
  Rectangle() : ShapeView(Shape::rectangle()) {}
};

struct [[nodiscard]] RoundedRectangle : ShapeView {
  explicit RoundedRectangle(double cornerRadius) : ShapeView(Shape::rounded(cornerRadius)) {}
};

struct [[nodiscard]] Capsule : ShapeView {
  Capsule() : ShapeView(Shape::capsule()) {}
};

struct [[nodiscard]] Circle : ShapeView {
  Circle() : ShapeView(Shape::circle()) {}
};

}  // namespace orvane::ui
