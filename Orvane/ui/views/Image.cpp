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
  ImageElement(std::string name, std::optional<ContentMode> mode)
      : name_(std::move(name)), mode_(mode) {}

  Size measure(Node&, const Proposal& proposal, LayoutPass& pass) const override {
    const std::optional<Size> natural = pass.images().image(name_);
    if (!natural) {
      return {};
    }
    if (!mode_) {
      return *natural;
    }
    if (*mode_ == ContentMode::stretch) {
      return {proposal.width.value_or(natural->width), proposal.height.value_or(natural->height)};
    }
    return scaled(*natural, proposal);
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

  Size scaled(Size natural, const Proposal& proposal) const {
    const double factor = std::min(proposal.width.value_or(infinity) / natural.width,
                                   proposal.height.value_or(infinity) / natural.height);
    return std::isfinite(factor) ? Size{natural.width * factor, natural.height * factor} : natural;
  }

  std::string name_;
  std::optional<ContentMode> mode_;
};

class SymbolElement final : public Element {
 public:
  explicit SymbolElement(std::string name) : name_(std::move(name)) {}

  Size measure(Node& node, const Proposal&, LayoutPass& pass) const override {
    return pass.images().symbol(name_, node.environment->text.font).value_or(Size{});
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
                          AttributeReader(node, context.now).color(),
                          Rect::from(origin, context.rect.size()));
  }

 private:
  std::string name_;
};

}  // namespace

Image::Image(std::string name)
    : View(std::make_shared<ImageElement>(name, std::nullopt)), name_(std::move(name)) {}

View Image::resizable(ContentMode mode) const {
  return View(std::make_shared<ImageElement>(name_, mode));
}

Symbol::Symbol(std::string name) : View(std::make_shared<SymbolElement>(std::move(name))) {}

}  // namespace orvane::ui
