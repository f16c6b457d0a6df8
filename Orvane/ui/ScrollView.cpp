// Horizontal scrolling: the offset lives in the node and only moves what is presented.
#include "Orvane/ui/ScrollView.hpp"

#include "Orvane/ui/LayoutPass.hpp"
#include "Orvane/ui/WrapperElement.hpp"

namespace orvane::ui {

namespace {

class ScrollElement final : public WrapperElement {
 public:
  using WrapperElement::WrapperElement;

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    const Size content = Element::measure(node, freed(proposal), pass);
    return {proposal.width.value_or(content.width), content.height};
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    if (!node.data.has_value()) {
      node.data = ScrollData{};
    }
    auto& data = std::any_cast<ScrollData&>(node.data);
    const Size content = Element::measure(node, freed(proposal), pass);
    data.most = std::max(0.0, content.width - size.width);
    data.scrollBy(0);
    Element::place(node, freed(proposal), size, pass);
  }

  double layoutPriority(const Node&) const override { return 0; }

  Effect effect(const Node& node, Size size, double) const override {
    Effect effect;
    effect.clip = Shape::rectangle({0, 0, size.width, size.height});
    if (const auto* data = std::any_cast<ScrollData>(&node.data)) {
      effect.transform = Transform::translation({-data->offset, 0});
    }
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
};

}  // namespace

ScrollView::ScrollView(const View& content) : View(std::make_shared<ScrollElement>(content)) {}

ScrollData* scrollData(Node& node) {
  return std::any_cast<ScrollData>(&node.data);
}

}  // namespace orvane::ui
