// A shape with its fills and strokes, whose numbers and colours can all be animated.
#include "Orvane/ui/views/ShapeView.hpp"

#include <vector>

#include "Orvane/ui/draw/DrawContext.hpp"
#include "Orvane/ui/views/Attributes.hpp"
#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

namespace {

struct ShapeLayer {
  enum class Kind { fill, stroke, strokeBorder };

  Kind kind;
  Fill fill;
  double lineWidth;
};

struct ShapeElement final : Element {
  Shape shape;
  std::vector<Shadow> shadows;
  std::vector<ShapeLayer> layers;

  Size measure(Node&, const Proposal& proposal, LayoutPass&) const override {
    constexpr double ideal = 10;
    return {proposal.width.value_or(ideal), proposal.height.value_or(ideal)};
  }

  void attributes(const Node&, AttributeWriter& writer) const override {
    writer.numbers({shape.cornerRadius});
    for (const Shadow& shadow : shadows) {
      writer.shadow(shadow);
    }
    for (const ShapeLayer& layer : layers) {
      writer.fill(layer.fill);
      writer.numbers({layer.lineWidth});
    }
  }

  void draw(const Node& node, const DrawContext& context) const override {
    const Rect rect = context.snapped(context.rect);
    if (rect.isEmpty()) {
      return;
    }
    AttributeReader reader{node, context.now};
    Shape drawn = shape.in(rect);
    drawn.cornerRadius = reader.number();
    for (std::size_t index = 0; index < shadows.size(); ++index) {
      const PaintShadow shadow = reader.shadow();
      if (shadow.color.alpha > 0) {
        context.canvas.shadow(drawn, shadow);
      }
    }
    for (const ShapeLayer& layer : layers) {
      const Paint paint = reader.fill(layer.fill, drawn.rect);
      const double lineWidth = reader.number();
      if (layer.kind == ShapeLayer::Kind::fill) {
        context.canvas.fill(drawn, paint);
      } else if (lineWidth > 0) {
        const bool isInside = layer.kind == ShapeLayer::Kind::strokeBorder;
        context.canvas.stroke(isInside ? drawn.inset(lineWidth / 2) : drawn, paint, lineWidth);
      }
    }
  }
};

View viewOf(const Shape& shape) {
  const auto element = std::make_shared<ShapeElement>();
  element->shape = shape;
  return View(element);
}

View adding(const View& view, const ShapeLayer& layer) {
  return altered<ShapeElement>(view, [&](auto& element) { element.layers.push_back(layer); });
}

}  // namespace

ShapeView::ShapeView(const Shape& shape) : View(viewOf(shape)) {}

ShapeView ShapeView::fill(const Fill& fill) const {
  return ShapeView(adding(*this, {ShapeLayer::Kind::fill, fill, 0}));
}

ShapeView ShapeView::stroke(const Fill& fill, double lineWidth) const {
  return ShapeView(adding(*this, {ShapeLayer::Kind::stroke, fill, lineWidth}));
}

ShapeView ShapeView::strokeBorder(const Fill& fill, double lineWidth) const {
  return ShapeView(adding(*this, {ShapeLayer::Kind::strokeBorder, fill, lineWidth}));
}

ShapeView ShapeView::castShadow(const Shadow& shadow) const {
  return ShapeView(
      altered<ShapeElement>(*this, [&](auto& element) { element.shadows.push_back(shadow); }));
}

}  // namespace orvane::ui
