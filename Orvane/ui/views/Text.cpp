// Text remembers how it was broken, so that a redraw does not shape it anew.
#include "Orvane/ui/views/Text.hpp"

#include <cmath>

#include "Orvane/ui/draw/DrawContext.hpp"
#include "Orvane/ui/host/Builder.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/views/Attributes.hpp"

namespace orvane::ui {

namespace {

// In points. A stack of its own ideal width hands a text its ideal width back only up to rounding,
// which must not cut the text.
constexpr double slack = 1.0e-6;

// In steps of this tracking goes, in points, so that every platform's text engine keeps to it.
constexpr double trackingStep = 1.0 / 64;

// How a text is broken, and the font it is drawn in: its own, perhaps set closer.
struct BrokenText {
  Font font;
  TextLayout layout;
};

// What a text node keeps: how its present text was broken, and how it was placed.
struct TextData {
  struct Known {
    double width;
    int lineLimit;
    BrokenText broken;
  };

  std::string text;
  Font font;
  TruncationMode truncation;
  double tightening;
  std::optional<double> lineHeight;
  std::vector<Known> known;
  BrokenText placed;

  bool isFor(const std::string& wanted, const Environment& inherited) const {
    return text == wanted && font == inherited.font && truncation == inherited.truncationMode &&
           tightening == inherited.tightening && lineHeight == inherited.lineHeight;
  }
};

void setLineHeight(TextLayout& layout, double lineHeight, const Font& font,
                   TextMeasurer& measurer) {
  const TextLayout latin = measurer.layout("x", font, infinity, 1);
  layout.ascent = latin.ascent + (lineHeight - latin.lineHeight) / 2;
  layout.lineHeight = lineHeight;
}

class TextElement final : public Element {
 public:
  explicit TextElement(std::string text) : text_(std::move(text)) {}

  void build(Node& node, Builder&) const override {
    const auto* data = std::any_cast<TextData>(&node.data);
    const Environment& inherited = *node.environment;
    if (data == nullptr || !data->isFor(text_, inherited)) {
      node.data = TextData{text_,
                           inherited.font,
                           inherited.truncationMode,
                           inherited.tightening,
                           inherited.lineHeight,
                           {},
                           {}};
    }
  }

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    return brokenFor(node, proposal, pass).layout.size();
  }

  void place(Node& node, const Proposal& proposal, Size, LayoutPass& pass) const override {
    BrokenText broken = brokenFor(node, proposal, pass);
    std::any_cast<TextData&>(node.data).placed = std::move(broken);
  }

  void attributes(const Node& node, AttributeWriter& writer) const override {
    writer.color(node.environment->foreground);
  }

  void draw(const Node& node, const DrawContext& context) const override {
    const auto& [font, layout] = std::any_cast<const TextData&>(node.data).placed;
    const Rgba color = AttributeReader(node, context.now).color();
    const double fraction = static_cast<double>(node.environment->textAlignment) / 2;
    double baseline = context.rect.y + layout.ascent;
    for (const TextLine& line : layout.lines) {
      if (!line.text.empty()) {
        const double x = context.rect.x + (context.rect.width - line.width) * fraction;
        context.canvas.text(line.text, font, color, context.snapped(Point{x, baseline}));
      }
      baseline += layout.lineHeight;
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
    element.cutText =
        std::any_cast<const TextData&>(node.data).placed.layout.isTruncated ? text_ : "";
    element.isEnabled = node.environment->isEnabled;
    element.frame = node.hostFrame();
    return {std::move(element)};
  }

 private:
  const BrokenText& brokenFor(Node& node, const Proposal& proposal, LayoutPass& pass) const {
    const double width = proposal.width.value_or(infinity);
    const int limit = node.environment->lineLimit;
    const BrokenText& free = known(node, width, limit, pass);
    if (!proposal.height || std::isinf(*proposal.height)) {
      return free;
    }
    // As many whole lines as fit, at least one; the small share forgives rounding.
    const double lineHeight = free.layout.lineHeight;
    const double fitting = lineHeight > 0 ? *proposal.height / lineHeight + 0.001 : 1;
    if (fitting >= static_cast<double>(free.layout.lines.size())) {
      return free;
    }
    return known(node, width, std::max(1, static_cast<int>(fitting)), pass);
  }

  const BrokenText& known(Node& node, double width, int lineLimit, LayoutPass& pass) const {
    auto& data = std::any_cast<TextData&>(node.data);
    for (const TextData::Known& entry : data.known) {
      if (entry.width == width && entry.lineLimit == lineLimit) {
        return entry.broken;
      }
    }
    // A window being resized must not gather layouts without end. The number is larger than what
    // one pass asks for, and clearing happens before adding, so the result below stays valid.
    constexpr std::size_t capacity = 24;
    if (data.known.size() >= capacity) {
      data.known.clear();
    }
    data.known.reserve(capacity);
    data.known.push_back({width, lineLimit, broken(data, width, lineLimit, pass.text())});
    BrokenText& added = data.known.back().broken;
    if (data.lineHeight) {
      setLineHeight(added.layout, *data.lineHeight, data.font, pass.text());
    }
    return added;
  }

  BrokenText broken(const TextData& data, double width, int lineLimit,
                    TextMeasurer& measurer) const {
    const auto layoutIn = [&](const Font& font, double room) {
      return measurer.layout(text_, font, room + slack, {lineLimit, data.truncation});
    };
    TextLayout natural = layoutIn(data.font, width);
    if (!natural.isTruncated || lineLimit != 1 || data.tightening <= 0) {
      return {data.font, std::move(natural)};
    }
    // What a point of tracking takes is measured: how many characters a text has is the font's
    // business.
    Font closer = data.font;
    closer.tracking -= 1;
    const double fullWidth = layoutIn(data.font, infinity).size().width;
    const double perPoint = fullWidth - layoutIn(closer, infinity).size().width;
    const double excess = fullWidth - width;
    if (excess <= fullWidth * data.tightening && perPoint > 0) {
      closer.tracking =
          data.font.tracking - std::ceil(excess / perPoint / trackingStep) * trackingStep;
      TextLayout tight = layoutIn(closer, width);
      if (!tight.isTruncated) {
        return {closer, std::move(tight)};
      }
    }
    return {data.font, std::move(natural)};
  }

  std::string text_;
};

}  // namespace

Text::Text(std::string text) : View(std::make_shared<TextElement>(std::move(text))) {}

}  // namespace orvane::ui
