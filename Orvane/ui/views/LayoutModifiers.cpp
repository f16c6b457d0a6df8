// The modifiers that change layout: padding, frames, fixed sizes, priorities, layers.
#include <algorithm>
#include <array>

#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

namespace {

class PaddingElement final : public ModifierElement {
 public:
  PaddingElement(View content, const Edges& edges)
      : ModifierElement(std::move(content)), edges_(edges) {}

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    const Size inner = Element::measure(node, proposal.inset(edges_), pass);
    return {inner.width + edges_.width(), inner.height + edges_.height()};
  }

  void place(Node& node, const Proposal& proposal, Size, LayoutPass& pass) const override {
    if (!node.children.empty()) {
      pass.place(*node.children.front(), {edges_.leading, edges_.top}, proposal.inset(edges_));
    }
  }

 private:
  Edges edges_;
};

// One direction of a frame.
struct FrameLength {
  std::optional<double> fixed;
  std::optional<double> minimum;
  std::optional<double> maximum;

  std::optional<double> offer(std::optional<double> proposed) const {
    if (fixed) {
      return fixed;
    }
    if (!proposed) {
      return std::nullopt;
    }
    return std::max(minimum.value_or(0), std::min(*proposed, maximum.value_or(infinity)));
  }

  // Without a bound on a side, the content is the bound on that side.
  double chosen(std::optional<double> proposed, double content) const {
    if (fixed) {
      return *fixed;
    }
    if (!minimum && !maximum) {
      return content;
    }
    const double lower = minimum.value_or(std::min(content, maximum.value_or(infinity)));
    const double upper = std::max(lower, maximum.value_or(content));
    return std::clamp(proposed.value_or(content), lower, upper);
  }
};

class FrameElement final : public ModifierElement {
 public:
  FrameElement(View content, const FrameBounds& bounds)
      : ModifierElement(std::move(content)),
        width_{bounds.width, bounds.minimumWidth, bounds.maximumWidth},
        height_{bounds.height, bounds.minimumHeight, bounds.maximumHeight},
        alignment_(bounds.alignment) {}

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    const Size inner = Element::measure(node, innerProposal(proposal), pass);
    return {width_.chosen(proposal.width, inner.width),
            height_.chosen(proposal.height, inner.height)};
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    if (!node.children.empty()) {
      pass.placeAligned(*node.children.front(), size, alignment_, innerProposal(proposal));
    }
  }

 private:
  Proposal innerProposal(const Proposal& proposal) const {
    return {width_.offer(proposal.width), height_.offer(proposal.height)};
  }

  FrameLength width_;
  FrameLength height_;
  Alignment alignment_;
};

class FixedSizeElement final : public ModifierElement {
 public:
  FixedSizeElement(View content, bool horizontal, bool vertical)
      : ModifierElement(std::move(content)), horizontal_(horizontal), vertical_(vertical) {}

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    return Element::measure(node, freed(proposal), pass);
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    Element::place(node, freed(proposal), size, pass);
  }

 private:
  Proposal freed(const Proposal& proposal) const {
    return {horizontal_ ? std::nullopt : proposal.width,
            vertical_ ? std::nullopt : proposal.height};
  }

  bool horizontal_;
  bool vertical_;
};

class PriorityElement final : public ModifierElement {
 public:
  PriorityElement(View content, double priority)
      : ModifierElement(std::move(content)), priority_(priority) {}

  double layoutPriority(const Node&) const override { return priority_; }

 private:
  double priority_;
};

// Covers the whole view and aligns its content in it. The node stays when the content is empty.
class LayerElement final : public ModifierElement {
 public:
  LayerElement(View content, Alignment alignment)
      : ModifierElement(std::move(content)), alignment_(alignment) {}

  Size measure(Node&, const Proposal& proposal, LayoutPass&) const override {
    return {proposal.width.value_or(0), proposal.height.value_or(0)};
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    if (!node.children.empty()) {
      pass.placeAligned(*node.children.front(), size, alignment_, proposal);
    }
  }

 private:
  Alignment alignment_;
};

// A view with a layer below or above it. The view decides the size, which the layer is proposed.
class LayersElement final : public ModifierElement {
 public:
  LayersElement(View content, View layer, bool isAbove, Alignment alignment)
      : ModifierElement(std::move(content)),
        layer_(std::move(layer)),
        isAbove_(isAbove),
        alignment_(alignment) {}

  void build(Node& node, BuildPass& pass) const override {
    const View layer(std::make_shared<LayerElement>(layer_, alignment_));
    const std::array<View, 2> children{isAbove_ ? content() : layer, isAbove_ ? layer : content()};
    pass.children(node, children, node.environment);
  }

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    return pass.measure(primary(node), proposal);
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    pass.place(primary(node), {0, 0}, proposal);
    Node& layer = *node.children[isAbove_ ? 1 : 0];
    pass.place(layer, {0, 0}, Proposal::of(size));
  }

  double layoutPriority(const Node& node) const override {
    const Node& content = *node.children[isAbove_ ? 0 : 1];
    return content.element->layoutPriority(content);
  }

 private:
  Node& primary(Node& node) const { return *node.children[isAbove_ ? 0 : 1]; }

  View layer_;
  bool isAbove_;
  Alignment alignment_;
};

}  // namespace

View View::padding(double distance) const {
  return padding(Edges::all(distance));
}

View View::padding(const Edges& edges) const {
  return modified<PaddingElement>(*this, edges);
}

View View::frame(double width, double height, Alignment alignment) const {
  return frame({.width = width, .height = height, .alignment = alignment});
}

View View::frame(const FrameBounds& bounds) const {
  return modified<FrameElement>(*this, bounds);
}

View View::width(double width, Alignment alignment) const {
  return frame({.width = width, .alignment = alignment});
}

View View::height(double height, Alignment alignment) const {
  return frame({.height = height, .alignment = alignment});
}

View View::maximumWidth(double maximum, Alignment alignment) const {
  return frame({.maximumWidth = maximum, .alignment = alignment});
}

View View::fixedSize(bool horizontal, bool vertical) const {
  return modified<FixedSizeElement>(*this, horizontal, vertical);
}

View View::layoutPriority(double priority) const {
  return modified<PriorityElement>(*this, priority);
}

View View::background(const View& background, Alignment alignment) const {
  return modified<LayersElement>(*this, background, false, alignment);
}

View View::overlay(const View& overlay, Alignment alignment) const {
  return modified<LayersElement>(*this, overlay, true, alignment);
}

}  // namespace orvane::ui
