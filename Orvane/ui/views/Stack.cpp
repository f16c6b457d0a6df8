// The stacks, spacers and dividers. StackLayout divides the lengths.
#include "Orvane/ui/views/Stack.hpp"

#include <algorithm>

#include "Orvane/ui/draw/DrawContext.hpp"
#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/layout/StackLayout.hpp"
#include "Orvane/ui/views/Attributes.hpp"
#include "Orvane/ui/views/Group.hpp"

namespace orvane::ui {

namespace {

class StackElement final : public Element {
 public:
  // The alignment across the stack is a fraction: 0 is the leading or top side, 1 the other.
  StackElement(Axis axis, double spacing, double alignment, std::vector<View> children)
      : axis_(axis), spacing_(spacing), alignment_(alignment), children_(std::move(children)) {}

  std::optional<Axis> stackAxis() const override { return axis_; }
  double layoutPriority(const Node&) const override { return 0; }

  void build(Node& node, BuildPass& pass) const override {
    pass.members(node, children_, node.environment);
  }

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    const std::vector<StackSegment> segments = divide(node, proposal, pass);
    double along = segments.empty() ? 0 : spacing_ * static_cast<double>(segments.size() - 1);
    double across = 0;
    for (std::size_t index = 0; index < segments.size(); ++index) {
      const Size size = pass.measure(*node.children[index], offered(segments[index], proposal));
      along += segments[index].length;
      across = std::max(across, lengthAcross(axis_, size));
    }
    return orientedSize(axis_, along, across);
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    const std::vector<StackSegment> segments = divide(node, proposal, pass);
    double along = 0;
    for (std::size_t index = 0; index < segments.size(); ++index) {
      Node& child = *node.children[index];
      const Proposal offer = offered(segments[index], proposal);
      const double room =
          lengthAcross(axis_, size) - lengthAcross(axis_, pass.measure(child, offer));
      const Size origin = orientedSize(axis_, along, room * alignment_);
      pass.place(child, {origin.width, origin.height}, offer);
      along += segments[index].length + spacing_;
    }
  }

 private:
  Proposal offered(const StackSegment& segment, const Proposal& proposal) const {
    return Proposal::oriented(axis_, segment.offer, proposal.across(axis_));
  }

  std::vector<StackSegment> divide(Node& node, const Proposal& proposal, LayoutPass& pass) const {
    const std::optional<double> across = proposal.across(axis_);
    const auto length = [&](std::size_t index, std::optional<double> offer) {
      const Proposal asked = Proposal::oriented(axis_, offer, across);
      return lengthAlong(axis_, pass.measure(*node.children[index], asked));
    };
    std::vector<StackItem> items(node.children.size());
    // The extremes only matter to several children that compete for a finite length.
    const bool compete = items.size() > 1 && proposal.along(axis_).value_or(infinity) < infinity;
    for (std::size_t index = 0; compete && index < items.size(); ++index) {
      const Node& child = *node.children[index];
      items[index] = {length(index, 0), length(index, infinity),
                      child.element->layoutPriority(child)};
    }
    return divideStack(proposal.along(axis_), spacing_, items, length);
  }

  Axis axis_;
  double spacing_;
  double alignment_;
  std::vector<View> children_;
};

class ZStackElement final : public OverlaidElement {
 public:
  using OverlaidElement::OverlaidElement;

  [[nodiscard]] double layoutPriority(const Node&) const override { return 0; }

  void build(Node& node, BuildPass& pass) const override {
    pass.members(node, members(), node.environment);
  }
};

std::optional<Axis> axisAround(const Node& node) {
  for (const Node* ancestor = node.parent; ancestor != nullptr; ancestor = ancestor->parent) {
    if (const auto axis = ancestor->element->stackAxis()) {
      return axis;
    }
  }
  return std::nullopt;
}

class SpacerElement final : public Element {
 public:
  explicit SpacerElement(double minimum) : minimum_(std::max(0.0, minimum)) {}

  // Served last, with what the others leave.
  double layoutPriority(const Node&) const override { return -infinity; }

  Size measure(Node& node, const Proposal& proposal, LayoutPass&) const override {
    const auto length = [&](std::optional<double> offer) {
      return std::max(minimum_, offer.value_or(minimum_));
    };
    const auto axis = axisAround(node);
    return {axis == Axis::vertical ? 0 : length(proposal.width),
            axis == Axis::horizontal ? 0 : length(proposal.height)};
  }

 private:
  double minimum_;
};

class DividerElement final : public Element {
 public:
  Size measure(Node& node, const Proposal& proposal, LayoutPass&) const override {
    constexpr double ideal = 10;
    return axisAround(node) == Axis::horizontal ? Size{1, proposal.height.value_or(ideal)}
                                                : Size{proposal.width.value_or(ideal), 1};
  }

  void attributes(const Node&, AttributeWriter& writer) const override {
    writer.color(Color::tertiary().opacity(0.5));
  }

  void draw(const Node& node, const DrawContext& context) const override {
    context.canvas.fill(Shape::rectangle(context.snapped(context.rect)),
                        Paint::solid(AttributeReader(node, context.now).color()));
  }
};

template <typename AlignmentAcross>
double fraction(AlignmentAcross alignment) {
  return static_cast<double>(alignment) / 2;
}

}  // namespace

VStack::VStack(double spacing, HorizontalAlignment alignment, const std::vector<View>& children)
    : View(std::make_shared<StackElement>(Axis::vertical, spacing, fraction(alignment), children)) {
}

HStack::HStack(double spacing, VerticalAlignment alignment, const std::vector<View>& children)
    : View(std::make_shared<StackElement>(Axis::horizontal, spacing, fraction(alignment),
                                          children)) {}

ZStack::ZStack(Alignment alignment, const std::vector<View>& children)
    : View(std::make_shared<ZStackElement>(alignment, children)) {}

Spacer::Spacer(double minimum) : View(std::make_shared<SpacerElement>(minimum)) {}

Divider::Divider() : View(std::make_shared<DividerElement>()) {}

}  // namespace orvane::ui
