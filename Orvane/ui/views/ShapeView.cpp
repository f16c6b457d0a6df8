// A shape with its fills and strokes, whose numbers and colours can all be animated.
#include "Orvane/ui/views/ShapeView.hpp"

#include <vector>

#include "Orvane/ui/draw/DrawContext.hpp"
#include "Orvane/ui/views/Attributes.hpp"

namespace orvane::ui {

struct ShapeLayer {
  enum class Kind { fill, stroke, strokeBorder };

  Kind kind;
  Fill fill;
  double lineWidth;
};

class ShapeElement final : public Element {
 public:
  explicit ShapeElement(const Shape& shape) : shape_(shape) {}

  Size measure(Node&, const Proposal& proposal, LayoutPass&) const override {
    constexpr double ideal = 10;
    return {proposal.width.value_or(ideal), proposal.height.value_or(ideal)};
  }

  void attributes(const Node& node, AttributeWriter& writer) const override {
    writer.number(shape_.cornerRadius);
    for (const Shadow& shadow : shadows_) {
      writer.shadow(shadow);
    }
    for (const ShapeLayer& layer : layersOf(node)) {
      writer.fill(layer.fill);
      writer.number(layer.lineWidth);
    }
  }

  void draw(const Node& node, const DrawContext& context) const override {
    const Rect rect = context.snapped(context.rect);
    if (rect.isEmpty()) {
      return;
    }
    AttributeReader reader(node, context.now);
    Shape shape = shape_.in(rect);
    shape.cornerRadius = reader.number();
    for (std::size_t index = 0; index < shadows_.size(); ++index) {
      const PaintShadow shadow = reader.shadow();
      if (shadow.color.alpha > 0) {
        context.canvas.shadow(shape, shadow);
      }
    }
    for (const ShapeLayer& layer : layersOf(node)) {
      const Paint paint = reader.fill(layer.fill, shape.rect);
      const double lineWidth = reader.number();
      if (layer.kind == ShapeLayer::Kind::fill) {
        context.canvas.fill(shape, paint);
      } else if (lineWidth > 0) {
        const bool isInside = layer.kind == ShapeLayer::Kind::strokeBorder;
        context.canvas.stroke(isInside ? shape.inset(lineWidth / 2) : shape, paint, lineWidth);
      }
    }
  }

 private:
  friend class ShapeView;

  std::vector<ShapeLayer> layersOf(const Node& node) const {
    if (!layers_.empty()) {
      return layers_;
    }
    return {{ShapeLayer::Kind::fill, node.environment->foreground, 0}};
  }

  Shape shape_;
  std::vector<Shadow> shadows_;
  std::vector<ShapeLayer> layers_;
};

ShapeView::ShapeView(const Shape& shape) : View(std::make_shared<ShapeElement>(shape)) {}

template <typename Change>
ShapeView ShapeView::changed(const Change& change) const {
  auto copy = std::make_shared<ShapeElement>(static_cast<const ShapeElement&>(*element()));
  change(*copy);
  return ShapeView(View(std::move(copy)));
}

ShapeView ShapeView::adding(const ShapeLayer& layer) const {
  return changed([&](ShapeElement& shape) { shape.layers_.push_back(layer); });
}

ShapeView ShapeView::fill(const Fill& fill) const {
  return adding({ShapeLayer::Kind::fill, fill, 0});
}

ShapeView ShapeView::stroke(const Fill& fill, double lineWidth) const {
  return adding({ShapeLayer::Kind::stroke, fill, lineWidth});
}

ShapeView ShapeView::strokeBorder(const Fill& fill, double lineWidth) const {
  return adding({ShapeLayer::Kind::strokeBorder, fill, lineWidth});
}

ShapeView ShapeView::castShadow(const Shadow& shadow) const {
  return changed([&](ShapeElement& shape) { shape.shadows_.push_back(shadow); });
}

}  // namespace orvane::ui
