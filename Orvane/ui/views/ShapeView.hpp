// Shapes as views: they take the size they are offered, and are painted with fills and strokes one
// above the other, in the order of the calls.
#pragma once

#include <memory>

#include "Orvane/ui/draw/Fill.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

class ShapeElement;

class ShapeView : public View {
 public:
  explicit ShapeView(const Shape& shape);

  // A shape that is neither filled nor stroked is filled with the inherited colour.
  ShapeView fill(const Fill& fill) const;
  // A line centred on the outline, or all inside of it.
  ShapeView stroke(const Fill& fill, double lineWidth = 1) const;
  ShapeView strokeBorder(const Fill& fill, double lineWidth = 1) const;
  // The shadow of the shape itself, as if it were opaque, only around it: under a translucent fill
  // nothing darkens. (View::shadow is cast by what is really painted.)
  ShapeView castShadow(const Shadow& shadow) const;

 private:
  explicit ShapeView(std::shared_ptr<const ShapeElement> element);

  std::shared_ptr<const ShapeElement> shape_;
};

class Rectangle : public ShapeView {
 public:
  Rectangle() : ShapeView(Shape::rectangle()) {}
};

class RoundedRectangle : public ShapeView {
 public:
  explicit RoundedRectangle(double cornerRadius, CornerStyle style = CornerStyle::continuous)
      : ShapeView(Shape::rounded(cornerRadius, style)) {}
};

class Capsule : public ShapeView {
 public:
  Capsule() : ShapeView(Shape::capsule()) {}
};

class Circle : public ShapeView {
 public:
  Circle() : ShapeView(Shape::circle()) {}
};

}  // namespace orvane::ui
