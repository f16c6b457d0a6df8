// Tries smaller fonts until the line fits. Sizes are tried one by one, because a face may be spaced
// differently at each of them.
#include "Orvane/ui/FittedText.hpp"

#include <algorithm>
#include <utility>
#include <vector>

#include "Orvane/ui/Attributes.hpp"
#include "Orvane/ui/DrawContext.hpp"
#include "Orvane/ui/LayoutPass.hpp"

namespace orvane::ui {

namespace {

struct FittedLine {
  double offeredWidth = 0;
  Font font;
  TextLayout layout;
};

// What a node keeps: the answers for its present text and font, and the one it was placed with.
struct FittedData {
  std::string text;
  Font font;
  std::vector<FittedLine> known;
  FittedLine placed;
};

class FittedTextElement final : public Element {
 public:
  FittedTextElement(std::string text, double minimumScale)
      : text_(std::move(text)), minimumScale_(std::clamp(minimumScale, 0.0, 1.0)) {}

  void build(Node& node, Builder&) const override {
    const auto* data = std::any_cast<FittedData>(&node.data);
    const Font& font = node.environment->font;
    if (data == nullptr || data->text != text_ || !(data->font == font)) {
      node.data = FittedData{text_, font, {}, {}};
    }
  }

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    return lineFor(node, proposal, pass).layout.size();
  }

  void place(Node& node, const Proposal& proposal, Size, LayoutPass& pass) const override {
    FittedLine line = lineFor(node, proposal, pass);
    std::any_cast<FittedData&>(node.data).placed = std::move(line);
  }

  void attributes(const Node& node, AttributeWriter& writer) const override {
    writer.color(node.environment->foreground);
  }

  void draw(const Node& node, const DrawContext& context) const override {
    const FittedLine& placed = std::any_cast<const FittedData&>(node.data).placed;
    const Rgba color = AttributeReader(node, context.now).color();
    for (const TextLine& line : placed.layout.lines) {
      if (!line.text.empty()) {
        context.canvas.text(
            line.text, placed.font, color,
            context.snapped(Point{context.rect.x, context.rect.y + placed.layout.ascent}));
      }
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
  FittedLine fit(const Font& font, double width, LayoutPass& pass) const {
    constexpr double step = 0.25;
    const double smallest = font.size * minimumScale_;
    Font tried = font;
    while (true) {
      TextLayout layout = pass.text().layout(text_, tried, width, 1);
      if (!layout.isTruncated || tried.size - step < smallest) {
        return {width, tried, std::move(layout)};
      }
      tried.size -= step;
    }
  }

  const FittedLine& lineFor(Node& node, const Proposal& proposal, LayoutPass& pass) const {
    auto& data = std::any_cast<FittedData&>(node.data);
    const double width = proposal.width.value_or(infinity);
    for (const FittedLine& line : data.known) {
      if (line.offeredWidth == width) {
        return line;
      }
    }
    // A window being resized must not gather answers without end.
    constexpr std::size_t most = 16;
    if (data.known.size() >= most) {
      data.known.clear();
    }
    data.known.push_back(fit(data.font, width, pass));
    return data.known.back();
  }

  std::string text_;
  double minimumScale_;
};

}  // namespace

FittedText::FittedText(std::string text, double minimumScale)
    : View(std::make_shared<FittedTextElement>(std::move(text), minimumScale)) {}

}  // namespace orvane::ui
