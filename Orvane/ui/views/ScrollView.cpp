// The offset is an attribute of the node. It moves what is presented and does not change the
// layout.
#include "Orvane/ui/views/ScrollView.hpp"

#include <algorithm>

#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/views/Attributes.hpp"
#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

namespace {

// The data of a scroll view's node.
struct ScrollData {
  double maximumOffset;
  double margin;
};

// Null when the node is no scroll view.
const ScrollData* scrollData(const Node& node) {
  return std::any_cast<ScrollData>(&node.data);
}

// At the end of a running animation.
double offsetOf(const Node& area) {
  return area.attributes.empty() ? 0 : area.attributes.front().target();
}

// Along the curve or at once, within the limits. False when the presented offset is that already.
bool scrollTo(Node& area, double offset, const std::optional<Curve>& curve, double now) {
  AnimatedValue& shown = area.attributes.front();
  const double target = std::clamp(offset, 0.0, scrollData(area)->maximumOffset);
  const double before = shown.at(now);
  // An animation to the same offset goes on.
  shown.set(target, curve, now);
  return target != before;
}

void scrollIntoView(Node& area, const Node& node, const std::optional<Curve>& curve, double now) {
  // In layout coordinates, independent of running animations.
  double leading = 0;
  for (const Node* current = &node; current != &area; current = current->parent) {
    leading += current->targetFrame().x - (isScrollView(*current) ? offsetOf(*current) : 0);
  }
  const double width = area.targetFrame().width;
  const double room = std::max(0.0, (width - node.targetFrame().width) / 2);
  const double margin = std::min(scrollData(area)->margin, room);
  // The beginning of a view that is too wide is shown.
  const double minimum = leading + node.targetFrame().width + margin - width;
  scrollTo(area, std::min(std::max(offsetOf(area), minimum), leading - margin), curve, now);
}

// The value is the margin.
struct ScrollElement final : ModifierElement<double> {
  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    const Size content = Element::measure(node, freed(proposal), pass);
    return {proposal.width.value_or(content.width), content.height};
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    const Size content = Element::measure(node, freed(proposal), pass);
    node.data = ScrollData{std::max(0.0, content.width - size.width), value};
    scrollTo(node, offsetOf(node), node.curve, pass.now);
    Element::place(node, freed(proposal), size, pass);
  }

  double layoutPriority(const Node&) const override { return 0; }

  // The present offset stays.
  void attributes(const Node& node, AttributeWriter& writer) const override {
    writer.numbers({offsetOf(node)});
  }

  Effect effect(const Node& node, double now) const override {
    return {.transform = Transform::translation({-AttributeReader{node, now}.number(), 0}),
            .clip = Shape::rectangle(node.bounds())};
  }

  std::vector<SemanticsNode> semantics(const Node& node,
                                       std::vector<SemanticsNode> children) const override {
    SemanticsNode area = node.semantics(Role::scrollArea);
    area.children = std::move(children);
    return {std::move(area)};
  }

 private:
  static Proposal freed(const Proposal& proposal) { return {std::nullopt, proposal.height}; }
};

// None for a view that is not wanted.
using WantedPlace = std::optional<std::size_t>;

struct ScrollTargetElement final : ModifierElement<WantedPlace> {
  void build(Node& node, BuildPass& pass) const override {
    const auto* const before = std::any_cast<WantedPlace>(&node.data);
    if (value && (before == nullptr || *before != value)) {
      pass.scrollIntoView(node, node.isNew ? std::nullopt : node.curve);
    }
    node.data = value;
    ModifierElement::build(node, pass);
  }
};

}  // namespace

ScrollView::ScrollView(const View& content, double margin)
    : View(wrapped<ScrollElement>(content.padding(Edges::horizontal(margin)), margin)) {}

View View::scrollsIntoView(bool isWanted, std::size_t place) const {
  return modified<ScrollTargetElement>(*this, isWanted ? WantedPlace(place) : std::nullopt);
}

bool isScrollView(const Node& node) {
  return scrollData(node) != nullptr;
}

bool scrollBy(Node& node, double distance, double now) {
  if (!isScrollView(node)) {
    return false;
  }
  AnimatedValue& shown = node.attributes.front();
  const double before = shown.at(now);
  shown.jump(before);
  return scrollTo(node, before + distance, std::nullopt, now);
}

void scrollIntoView(const Node& node, const std::optional<Curve>& curve, double now) {
  for (Node* area = node.parent; area != nullptr; area = area->parent) {
    if (isScrollView(*area)) {
      scrollIntoView(*area, node, curve, now);
    }
  }
}

}  // namespace orvane::ui
