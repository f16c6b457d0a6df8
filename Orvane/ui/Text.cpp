// Text remembers how it was broken, so that a redraw does not shape it anew.
#include "Orvane/ui/Text.hpp"

#include <cmath>

#include "Orvane/ui/Attributes.hpp"
#include "Orvane/ui/Builder.hpp"
#include "Orvane/ui/DrawContext.hpp"
#include "Orvane/ui/LayoutPass.hpp"

namespace orvane::ui {

namespace {

// In points. A stack of its own ideal width hands a text its ideal width back only up to rounding,
// which must not cut the text.
constexpr double slack = 1.0e-6;

// What a text node keeps: the layouts made for its present text and font, and the one it has.
struct TextData {
  struct Known {
    double width;
    int lineLimit;
    TextLayout layout;
  };

  std::string text;
  Font font;
  std::optional<double> lineHeight;
  std::vector<Known> known;
  TextLayout placed;
};

// The same lines, each of that height.
TextLayout spaced(TextLayout layout, double lineHeight, const Font& font, LayoutPass& pass) {
  const TextLayout latin = pass.text().layout("x", font, infinity, 1);
  layout.ascent = latin.ascent + (lineHeight - latin.lineHeight) / 2;
  layout.lineHeight = lineHeight;
  return layout;
}

class TextElement final : public Element {
 public:
  explicit TextElement(std::string text) : text_(std::move(text)) {}

  void build(Node& node, Builder&) const override {
    const auto* data = std::any_cast<TextData>(&node.data);
    const Font& font = node.environment->font;
    const std::optional<double>& lineHeight = node.environment->lineHeight;
    if (data == nullptr || data->text != text_ || !(data->font == font) ||
        data->lineHeight != lineHeight) {
      node.data = TextData{text_, font, lineHeight, {}, {}};
    }
  }

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    return layoutFor(node, proposal, pass).size();
  }

  void place(Node& node, const Proposal& proposal, Size, LayoutPass& pass) const override {
    TextLayout layout = layoutFor(node, proposal, pass);
    std::any_cast<TextData&>(node.data).placed = std::move(layout);
  }

  void attributes(const Node& node, AttributeWriter& writer) const override {
    writer.color(node.environment->foreground);
  }

  void draw(const Node& node, const DrawContext& context) const override {
    const auto& data = std::any_cast<const TextData&>(node.data);
    const Rgba color = AttributeReader(node, context.now).color();
    const double share = static_cast<double>(node.environment->textAlignment) / 2;
    double baseline = context.rect.y + data.placed.ascent;
    for (const TextLine& line : data.placed.lines) {
      if (!line.text.empty()) {
        const double x = context.rect.x + (context.rect.width - line.width) * share;
        context.canvas.text(line.text, data.font, color, context.snapped(Point{x, baseline}));
      }
      baseline += data.placed.lineHeight;
    }
  }

  std::vector<SemanticsNode> semantics(const Node& node,
                                       std::vector<SemanticsNode>) const override {
    if (text_.empty()) {
      return {};
    }
    SemanticsNode element;
    element.id = node.id;
    element.role = Role::staticText;
    element.label = text_;
    element.isEnabled = node.environment->isEnabled;
    element.frame = node.hostFrame();
    return {std::move(element)};
  }

 private:
  const TextLayout& layoutFor(Node& node, const Proposal& proposal, LayoutPass& pass) const {
    const double width = proposal.width.value_or(infinity);
    const int limit = node.environment->lineLimit;
    const TextLayout& free = known(node, width, limit, pass);
    if (!proposal.height || std::isinf(*proposal.height)) {
      return free;
    }
    // As many whole lines as fit, at least one; the small share forgives rounding.
    const double fitting = free.lineHeight > 0 ? *proposal.height / free.lineHeight + 0.001 : 1;
    if (fitting >= static_cast<double>(free.lines.size())) {
      return free;
    }
    return known(node, width, std::max(1, static_cast<int>(fitting)), pass);
  }

  const TextLayout& known(Node& node, double width, int lineLimit, LayoutPass& pass) const {
    auto& data = std::any_cast<TextData&>(node.data);
    for (const TextData::Known& entry : data.known) {
      if (entry.width == width && entry.lineLimit == lineLimit) {
        return entry.layout;
      }
    }
    // A window being resized must not gather layouts without end. The number is larger than what
    // one pass asks for, and clearing happens before adding, so the result below stays valid.
    constexpr std::size_t most = 24;
    if (data.known.size() >= most) {
      data.known.clear();
    }
    data.known.reserve(most);
    data.known.push_back(
        {width, lineLimit, pass.text().layout(text_, data.font, width + slack, lineLimit)});
    TextLayout& layout = data.known.back().layout;
    if (data.lineHeight) {
      layout = spaced(std::move(layout), *data.lineHeight, data.font, pass);
    }
    return layout;
  }

  std::string text_;
};

}  // namespace

Text::Text(std::string text) : View(std::make_shared<TextElement>(std::move(text))) {}

}  // namespace orvane::ui
