// The stacks and spacers. StackLayout divides the lengths.
#include "Orvane/ui/views/Stack.hpp"

#include <algorithm>

#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/layout/StackLayout.hpp"

namespace orvane::ui {

namespace {

// It calculates with sizes and proposals turned along its axis.
class StackElement final : public Element {
 public:
  // The alignment across the stack is a fraction: 0 is the leading or top side, 1 the other.
  StackElement(Axis axis, double spacing, double alignment, std::vector<View> children)
      : axis_(axis), spacing_(spacing), alignment_(alignment), children_(std::move(children)) {}

  std::optional<Axis> stackAxis() const override { return axis_; }
  double layoutPriority(const Node&) const override { return 0; }

  void build(Node& node, BuildPass& pass) const override { pass.children(node, children_); }

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    const std::vector<StackSegment> segments = divide(node, proposal, pass);
    Size own{segments.empty() ? 0 : spacing_ * static_cast<double>(segments.size() - 1), 0};
    for (std::size_t index = 0; index < segments.size(); ++index) {
      const Proposal offer = offered(segments[index].offer, proposal);
      const Size child = turned(axis_, pass.measure(*node.children[index], offer));
      own = {own.width + segments[index].length, std::max(own.height, child.height)};
    }
    return turned(axis_, own);
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    const std::vector<StackSegment> segments = divide(node, proposal, pass);
    double along = 0;
    for (std::size_t index = 0; index < segments.size(); ++index) {
      Node& child = *node.children[index];
      const Proposal offer = offered(segments[index].offer, proposal);
      const double room =
          turned(axis_, size).height - turned(axis_, pass.measure(child, offer)).height;
      const Size origin = turned(axis_, Size{along, room * alignment_});
      pass.place(child, {origin.width, origin.height}, offer);
      along += segments[index].length + spacing_;
    }
  }

 private:
  Proposal offered(std::optional<double> length, const Proposal& proposal) const {
    return turned(axis_, Proposal{length, turned(axis_, proposal).height});
  }

  std::vector<StackSegment> divide(Node& node, const Proposal& proposal, LayoutPass& pass) const {
    const auto length = [&](std::size_t index, std::optional<double> offer) {
      return turned(axis_, pass.measure(*node.children[index], offered(offer, proposal))).width;
    };
    const std::optional<double> available = turned(axis_, proposal).width;
    std::vector<StackItem> items(node.children.size());
    // The extremes only matter to several children that compete for a finite length.
    const bool compete = items.size() > 1 && available.value_or(infinity) < infinity;
    for (std::size_t index = 0; compete && index < items.size(); ++index) {
      const Node& child = *node.children[index];
      items[index] = {length(index, 0), length(index, infinity),
                      child.element->layoutPriority(child)};
    }
    return divideStack(available, spacing_, items, length);
  }

  Axis axis_;
  double spacing_;
  double alignment_;
  std::vector<View> children_;
};

class ZStackElement final : public Element {
 public:
  ZStackElement(Alignment alignment, std::vector<View> children)
      : alignment_(alignment), children_(std::move(children)) {}

  double layoutPriority(const Node&) const override { return 0; }

  void build(Node& node, BuildPass& pass) const override { pass.children(node, children_); }

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    Size result;
    for (const auto& child : node.children) {
      const Size size = pass.measure(*child, proposal);
      result = {std::max(result.width, size.width), std::max(result.height, size.height)};
    }
    return result;
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    for (const auto& child : node.children) {
      pass.placeAligned(*child, size, alignment_, proposal);
    }
  }

 private:
  Alignment alignment_;
  std::vector<View> children_;
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

}  // namespace

VStack::VStack(double spacing, HorizontalAlignment alignment, const std::vector<View>& children)
    : View(std::make_shared<StackElement>(Axis::vertical, spacing,
                                          static_cast<double>(alignment) / 2, children)) {}

HStack::HStack(double spacing, const std::vector<View>& children)
    : View(std::make_shared<StackElement>(Axis::horizontal, spacing, 0.5, children)) {}

ZStack::ZStack(Alignment alignment, const std::vector<View>& children)
    : View(std::make_shared<ZStackElement>(alignment, children)) {}

Spacer::Spacer(double minimum) : View(std::make_shared<SpacerElement>(minimum)) {}

}  // namespace orvane::ui
