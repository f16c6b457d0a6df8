// Shapes as views.
#pragma once

#include "Orvane/ui/draw/Fill.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

class ShapeElement;
struct ShapeLayer;

/// Takes the proposed size. Fills and strokes are painted in the order of the calls; without any,
/// the shape is filled with the inherited colour.
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
  /// A copy whose element is changed by the function.
  template <typename Change>
  ShapeView changed(const Change& change) const;
  ShapeView adding(const ShapeLayer& layer) const;
};

class [[nodiscard]] Rectangle : public ShapeView {
 public:
  Rectangle() : ShapeView(Shape::rectangle()) {}
};

class [[nodiscard]] RoundedRectangle : public ShapeView {
 public:
  explicit RoundedRectangle(double cornerRadius) : ShapeView(Shape::rounded(cornerRadius)) {}
};

class [[nodiscard]] Capsule : public ShapeView {
 public:
  Capsule() : ShapeView(Shape::capsule()) {}
};

class [[nodiscard]] Circle : public ShapeView {
 public:
  Circle() : ShapeView(Shape::circle()) {}
};

}  // namespace orvane::ui
