// Measuring and drawing of images and symbols.
#include "Orvane/ui/views/Image.hpp"

#include <algorithm>
#include <cmath>

#include "Orvane/ui/draw/DrawContext.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/views/Attributes.hpp"

namespace orvane::ui {

namespace {

constexpr const char* darkSuffix = "-dark";

class ImageElement final : public Element {
 public:
  ImageElement(std::string name, bool isResizable)
      : name_(std::move(name)), isResizable_(isResizable) {}

  Size measure(Node&, const Proposal& proposal, LayoutPass& pass) const override {
    const std::optional<Size> natural = pass.images.imageSize(name_);
    if (!natural || !isResizable_) {
      return natural.value_or(Size{});
    }
    const double factor = std::min(proposal.width.value_or(infinity) / natural->width,
                                   proposal.height.value_or(infinity) / natural->height);
    return std::isfinite(factor) ? Size{natural->width * factor, natural->height * factor}
                                 : *natural;
  }

  void draw(const Node& node, const DrawContext& context) const override {
    const Rect rect = context.snapped(context.rect);
    if (!rect.isEmpty()) {
      context.canvas.image(shownName(*node.environment), rect);
    }
  }

 private:
  std::string shownName(const Environment& environment) const {
    const std::string dark = name_ + darkSuffix;
    return environment.isDark() && environment.hasImage(dark) ? dark : name_;
  }

  std::string name_;
  bool isResizable_;
};

class SymbolElement final : public Element {
 public:
  explicit SymbolElement(std::string name) : name_(std::move(name)) {}

  Size measure(Node& node, const Proposal&, LayoutPass& pass) const override {
    return pass.images.symbolSize(name_, node.environment->text.font).value_or(Size{});
  }

  void attributes(const Node& node, AttributeWriter& writer) const override {
    writer.color(node.environment->foreground);
  }

  void draw(const Node& node, const DrawContext& context) const override {
    if (context.rect.isEmpty()) {
      return;
    }
    const Point origin = context.snapped(context.rect.origin());
    context.canvas.symbol(name_, node.environment->text.font,
                          AttributeReader{node, context.now}.color(),
                          Rect::from(origin, context.rect.size()));
  }

 private:
  std::string name_;
};

}  // namespace

Image::Image(std::string name)
    : View(std::make_shared<ImageElement>(name, false)), name_(std::move(name)) {}

View Image::resizable() const {
  return View(std::make_shared<ImageElement>(name_, true));
}

Symbol::Symbol(std::string name) : View(std::make_shared<SymbolElement>(std::move(name))) {}

}  // namespace orvane::ui
