// The modifiers that change layout: padding, frames, fixed sizes, layers.
#include <algorithm>
#include <array>

#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

namespace {

// A modifier that lays out its content by a rule: what it offers to the content, its own size with
// the content's, and the origin of the content in it.
template <typename Rule>
struct LayoutElement final : ModifierElement<Rule> {
  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    const Proposal offer = this->value.offer(proposal);
    return this->value.size(proposal, this->Element::measure(node, offer, pass));
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    if (!node.children.empty()) {
      Node& content = *node.children.front();
      const Proposal offer = this->value.offer(proposal);
      pass.place(content, this->value.origin(pass.measure(content, offer), size), offer);
    }
  }
};

struct Padding {
  Edges edges;

  Proposal offer(const Proposal& proposal) const { return proposal.inset(edges); }
  Size size(const Proposal&, Size content) const {
    return {content.width + edges.width(), content.height + edges.height()};
  }
  Point origin(Size, Size) const { return {edges.leading, edges.top}; }
};

struct Frame {
  FrameBounds bounds;

  Proposal offer(const Proposal& proposal) const {
    return {offered(proposal.width, bounds.width, bounds.maximumWidth),
            offered(proposal.height, bounds.height, bounds.maximumHeight)};
  }
  Size size(const Proposal& proposal, Size content) const {
    return {chosen(proposal.width, bounds.width, bounds.maximumWidth, content.width),
            chosen(proposal.height, bounds.height, bounds.maximumHeight, content.height)};
  }
  Point origin(Size content, Size own) const { return bounds.alignment.originOf(content, own); }

 private:
  using Length = std::optional<double>;

  static Length offered(Length proposed, Length fixed, Length maximum) {
    if (fixed) {
      return fixed;
    }
    return proposed && maximum ? std::min(*proposed, *maximum) : proposed;
  }

  static double chosen(Length proposed, Length fixed, Length maximum, double content) {
    if (fixed || !maximum) {
      return fixed.value_or(content);
    }
    return std::clamp(proposed.value_or(content), std::min(content, *maximum), *maximum);
  }
};

struct FixedSize {
  bool isHorizontal;

  Proposal offer(const Proposal& proposal) const {
    return {isHorizontal ? std::nullopt : proposal.width, std::nullopt};
  }
  Size size(const Proposal&, Size content) const { return content; }
  Point origin(Size, Size) const { return {}; }
};

// Covers the whole view. The node stays when the content is empty.
struct Layer {
  Alignment alignment;

  Proposal offer(const Proposal& proposal) const { return proposal; }
  Size size(const Proposal& proposal, Size) const {
    return {proposal.width.value_or(0), proposal.height.value_or(0)};
  }
  Point origin(Size content, Size own) const { return alignment.originOf(content, own); }
};

struct Layering {
  View layer;
  bool isAbove;
};

// A view with a layer below or above it. The view decides the size, which the layer is proposed.
struct LayersElement final : ModifierElement<Layering> {
  void build(Node& node, BuildPass& pass) const override {
    const auto& [layer, isAbove] = value;
    pass.children(node, std::array{isAbove ? content : layer, isAbove ? layer : content});
  }

  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override {
    return pass.measure(primary(node), proposal);
  }

  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override {
    pass.place(primary(node), {0, 0}, proposal);
    pass.place(*node.children[value.isAbove ? 1 : 0], {0, 0}, Proposal::of(size));
  }

  double layoutPriority(const Node& node) const override {
    return primary(node).element->layoutPriority(primary(node));
  }

 private:
  Node& primary(const Node& node) const { return *node.children[value.isAbove ? 0 : 1]; }
};

View layered(const View& view, const View& layer, bool isAbove, Alignment alignment) {
  const View whole = wrapped<LayoutElement<Layer>>(layer, Layer{alignment});
  return modified<LayersElement>(view, Layering{whole, isAbove});
}

}  // namespace

View View::padding(double distance) const {
  return padding(Edges::all(distance));
}

View View::padding(const Edges& edges) const {
  return modified<LayoutElement<Padding>>(*this, Padding{edges});
}

View View::frame(double width, double height, Alignment alignment) const {
  return frame({.width = width, .height = height, .alignment = alignment});
}

View View::frame(const FrameBounds& bounds) const {
  return modified<LayoutElement<Frame>>(*this, Frame{bounds});
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

View View::fixedSize() const {
  return modified<LayoutElement<FixedSize>>(*this, FixedSize{.isHorizontal = true});
}

View View::fixedSizeVertical() const {
  return modified<LayoutElement<FixedSize>>(*this, FixedSize{.isHorizontal = false});
}

View View::background(const View& background, Alignment alignment) const {
  return layered(*this, background, false, alignment);
}

View View::overlay(const View& overlay, Alignment alignment) const {
  return layered(*this, overlay, true, alignment);
}

}  // namespace orvane::ui
