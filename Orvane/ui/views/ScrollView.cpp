// Horizontal scrolling: the offset is the node's attribute and only moves what is presented.
#include "Orvane/ui/views/ScrollView.hpp"

#include <algorithm>

#include "Orvane/ui/host/Builder.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/views/Attributes.hpp"
#include "Orvane/ui/views/WrapperElement.hpp"

namespace orvane::ui {

namespace {

// Where the content comes to rest.
double offsetOf(const Node& area) {
  return area.attributes.empty() ? 0 : area.attributes.front().target();
}

class ScrollElement final : public WrapperElement {
 public:
  ScrollElement(const View& content, double margin)
      : WrapperElement(content.padding(Edges::horizontal(margin))), margin_(margin) {}

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    const Size content = Element::measure(node, freed(proposal), pass);
    return {proposal.width.value_or(content.width), content.height};
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    const Size content = Element::measure(node, freed(proposal), pass);
    node.data = ScrollData{std::max(0.0, content.width - size.width), margin_};
    scrollTo(node, offsetOf(node), node.curve, pass.now());
    Element::place(node, freed(proposal), size, pass);
  }

  double layoutPriority(const Node&) const override { return 0; }

  // What the host has set stays.
  void attributes(const Node& node, AttributeWriter& writer) const override {
    writer.number(offsetOf(node));
  }

  Effect effect(const Node& node, Size size, double now) const override {
    Effect effect;
    effect.clip = Shape::rectangle({0, 0, size.width, size.height});
    effect.transform = Transform::translation({-AttributeReader(node, now).number(), 0});
    return effect;
  }

  std::vector<SemanticsNode> semantics(const Node& node,
                                       std::vector<SemanticsNode> children) const override {
    SemanticsNode area;
    area.id = node.id;
    area.role = Role::scrollArea;
    area.frame = node.hostFrame();
    area.isEnabled = node.environment->isEnabled;
    area.children = std::move(children);
    return {std::move(area)};
  }

 private:
  static Proposal freed(const Proposal& proposal) { return {std::nullopt, proposal.height}; }

  double margin_;
};

class ScrollTargetElement final : public WrapperElement {
 public:
  ScrollTargetElement(View content, std::optional<std::size_t> wantedPlace)
      : WrapperElement(std::move(content)), wantedPlace_(wantedPlace) {}

  void build(Node& node, Builder& builder) const override {
    const auto* const before = std::any_cast<std::optional<std::size_t>>(&node.data);
    if (wantedPlace_ && (before == nullptr || *before != wantedPlace_)) {
      builder.scrollIntoView(node, node.isNew ? std::nullopt : node.curve);
    }
    node.data = wantedPlace_;
    WrapperElement::build(node, builder);
  }

 private:
  // None for a view that is not wanted.
  std::optional<std::size_t> wantedPlace_;
};

}  // namespace

ScrollView::ScrollView(const View& content, double margin)
    : View(std::make_shared<ScrollElement>(content, margin)) {}

View View::scrollsIntoView(bool isWanted, std::size_t place) const {
  return modified<ScrollTargetElement>(*this, isWanted ? std::optional(place) : std::nullopt);
}

const ScrollData* scrollData(const Node& node) {
  return std::any_cast<ScrollData>(&node.data);
}

bool scrollTo(Node& area, double offset, const std::optional<Curve>& curve, double now) {
  AnimatedValue& shown = area.attributes.front();
  const double target = std::clamp(offset, 0.0, scrollData(area)->maximumOffset);
  const double before = shown.at(now);
  // A motion to the same place goes on.
  if (target != shown.target()) {
    shown.set(target, curve, now);
  }
  return target != before;
}

bool scrollBy(Node& area, double distance, double now) {
  AnimatedValue& shown = area.attributes.front();
  const double before = shown.at(now);
  shown.jump(before);
  return scrollTo(area, before + distance, std::nullopt, now);
}

void scrollIntoView(Node& area, const Node& node, const std::optional<Curve>& curve, double now) {
  // Where layout has put it, whatever still moves.
  double leading = 0;
  for (const Node* current = &node; current != &area; current = current->parent) {
    leading += current->target().x - (scrollData(*current) != nullptr ? offsetOf(*current) : 0);
  }
  const double width = area.target().width;
  const double room = std::max(0.0, (width - node.target().width) / 2);
  const double margin = std::min(scrollData(area)->margin, room);
  // Of what is too wide the beginning is shown.
  const double minimumOffset = leading + node.target().width + margin - width;
  scrollTo(area, std::min(std::max(offsetOf(area), minimumOffset), leading - margin), curve, now);
}

}  // namespace orvane::ui
