// The node keeps the lines of the text, so that an update does not shape it again.
#include "Orvane/ui/views/Text.hpp"

#include <cmath>
#include <map>

#include "Orvane/ui/draw/DrawContext.hpp"
#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/views/Attributes.hpp"

namespace orvane::ui {

namespace {

// In points. A text that gets its ideal width back from a stack, with a rounding error, must not be
// truncated.
constexpr double slack = 1.0e-6;

// Tracking is a multiple of this, in points, which every platform's text engine represents exactly.
constexpr double trackingStep = 1.0 / 64;

// The lines of a text, and the font they are drawn in: its own, perhaps with tighter tracking.
struct BrokenText {
  Font font;
  TextLayout layout;
};

// A text node keeps the lines for each width it was proposed, and those it was placed with.
struct TextData {
  std::string text;
  TextStyle style;
  /// By width and line limit.
  std::map<std::pair<double, int>, BrokenText> entries = {};
  BrokenText placed = {};
};

void setLineHeight(TextLayout& layout, double lineHeight, const Font& font,
                   TextMeasurer& measurer) {
  const TextLayout latin = measurer.layout("x", font, infinity, {1});
  layout.ascent = latin.ascent + (lineHeight - latin.lineHeight) / 2;
  layout.lineHeight = lineHeight;
}

class TextElement final : public Element {
 public:
  explicit TextElement(std::string text) : text_(std::move(text)) {}

  void build(Node& node, BuildPass&) const override {
    const auto* data = std::any_cast<TextData>(&node.data);
    const TextStyle& style = node.environment->text;
    if (data == nullptr || data->text != text_ || data->style != style) {
      node.data = TextData{.text = text_, .style = style};
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
    const Rgba color = AttributeReader{node, context.now}.color();
    const double fraction = static_cast<double>(node.environment->text.alignment) / 2;
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
    SemanticsNode element = node.semantics(Role::staticText);
    element.label = text_;
    element.cutText =
        std::any_cast<const TextData&>(node.data).placed.layout.isTruncated ? text_ : "";
    return {std::move(element)};
  }

 private:
  const BrokenText& brokenFor(Node& node, const Proposal& proposal, LayoutPass& pass) const {
    const double width = proposal.width.value_or(infinity);
    const int limit = node.environment->text.lineLimit;
    const BrokenText& natural = layoutFor(node, width, limit, pass);
    if (!proposal.height || std::isinf(*proposal.height)) {
      return natural;
    }
    // As many whole lines as fit, at least one, with a tolerance for rounding.
    const double lineHeight = natural.layout.lineHeight;
    const double fitting = lineHeight > 0 ? *proposal.height / lineHeight + 0.001 : 1;
    if (fitting >= static_cast<double>(natural.layout.lines.size())) {
      return natural;
    }
    return layoutFor(node, width, std::max(1, static_cast<int>(fitting)), pass);
  }

  const BrokenText& layoutFor(Node& node, double width, int lineLimit, LayoutPass& pass) const {
    auto& data = std::any_cast<TextData&>(node.data);
    const std::pair key(width, lineLimit);
    if (const auto kept = data.entries.find(key); kept != data.entries.end()) {
      return kept->second;
    }
    // More than one layout pass asks for; while a window is resized, old entries are dropped.
    constexpr std::size_t maximumCount = 24;
    if (data.entries.size() >= maximumCount) {
      data.entries.clear();
    }
    BrokenText& added = data.entries[key] = broken(data.style, width, lineLimit, pass.text);
    if (data.style.lineHeight) {
      setLineHeight(added.layout, *data.style.lineHeight, data.style.font, pass.text);
    }
    return added;
  }

  BrokenText broken(const TextStyle& style, double width, int lineLimit,
                    TextMeasurer& measurer) const {
    const auto layoutIn = [&](const Font& font, double room) {
      return measurer.layout(text_, font, room + slack, {lineLimit, style.truncationMode});
    };
    TextLayout natural = layoutIn(style.font, width);
    if (!natural.isTruncated || lineLimit != 1 || style.tightening <= 0) {
      return {style.font, std::move(natural)};
    }
    // The effect of tracking is measured, since the number of glyphs depends on the font.
    Font tighter = style.font;
    tighter.tracking -= 1;
    const double fullWidth = layoutIn(style.font, infinity).size().width;
    const double perPoint = fullWidth - layoutIn(tighter, infinity).size().width;
    const double excess = fullWidth - width;
    if (excess <= fullWidth * style.tightening && perPoint > 0) {
      tighter.tracking =
          style.font.tracking - std::ceil(excess / perPoint / trackingStep) * trackingStep;
      TextLayout tight = layoutIn(tighter, width);
      if (!tight.isTruncated) {
        return {tighter, std::move(tight)};
      }
    }
    return {style.font, std::move(natural)};
  }

  std::string text_;
};

}  // namespace

Text::Text(std::string text) : View(std::make_shared<TextElement>(std::move(text))) {}

}  // namespace orvane::ui
