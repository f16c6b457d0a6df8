// Nodes are matched by explicit id, otherwise by kind and place among their siblings.
#include "Orvane/ui/host/BuildPass.hpp"

#include <typeinfo>
#include <utility>
#include <variant>

#include "Orvane/ui/views/Attributes.hpp"
#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

namespace {

// The kit's own root stays, so that even the outermost view can appear and disappear.
struct RootElement final : ModifierElement<std::monostate> {};

}  // namespace

void BuildPass::root(std::unique_ptr<Node>& node, const View& view,
                     const std::shared_ptr<const Environment>& environment) {
  if (!node) {
    node = std::make_unique<Node>(++context_.nodeCount, nullptr);
  }
  update(*node, wrapped<RootElement>(view, std::monostate()), environment);
}

void BuildPass::children(Node& node, std::span<const View> views) {
  std::vector<std::unique_ptr<Node>> old = std::move(node.children);
  node.children.clear();
  node.children.reserve(views.size());
  const bool parentIsNew = node.isNew;
  int slot = 0;
  for (const View& view : views) {
    const bool isNamed = !view.explicitId().empty();
    const NodeKey key{isNamed ? -1 : slot, view.explicitId()};
    ++slot;
    if (view.isEmpty()) {
      continue;
    }
    std::unique_ptr<Node> child = take(old, key, *view.element(), node.children.size());
    const bool isEntering = !child;
    if (!child) {
      child = take(node.leaving, key, *view.element(), node.leaving.size());
    }
    const bool isMade = !child;
    if (!child) {
      child = std::make_unique<Node>(++context_.nodeCount, &node);
    }
    child->key = key;
    update(*child, view, node.environment);
    if (isEntering && !parentIsNew) {
      enter(*child, isMade);
    }
    node.children.push_back(std::move(child));
  }
  for (std::unique_ptr<Node>& leftover : old) {
    if (leftover) {
      remove(node, std::move(leftover));
    }
  }
}

void buildBody(Node& node, BuildPass& pass,
               const std::function<View(const Environment&)>& makeBody) {
  if (!node.states) {
    node.states = std::make_shared<StateStore>();
  }
  Environment own = *node.environment;
  own.states = node.states;
  node.states->isBodyRunning = true;
  const View body = makeBody(own);
  node.states->isBodyRunning = false;
  pass.children(node, {&body, 1});
}

std::unique_ptr<Node> BuildPass::take(std::vector<std::unique_ptr<Node>>& from, const NodeKey& key,
                                      const Element& element, std::size_t hint) {
  const auto matches = [&](const std::unique_ptr<Node>& node) {
    if (!node || !(node->key == key)) {
      return false;
    }
    const Element& held = *node->element;
    return typeid(held) == typeid(element);
  };
  // Usually the node is where it was.
  if (hint < from.size() && matches(from[hint])) {
    return std::move(from[hint]);
  }
  for (auto candidate = from.begin(); candidate != from.end(); ++candidate) {
    if (matches(*candidate)) {
      std::unique_ptr<Node> node = std::move(*candidate);
      from.erase(candidate);
      return node;
    }
  }
  return nullptr;
}

void BuildPass::update(Node& node, const View& view,
                       const std::shared_ptr<const Environment>& environment) {
  node.element = view.element();
  node.environment = environment;
  node.curve = node.parent != nullptr ? node.parent->curve : context_.curve;
  node.measured.clear();
  if (node.isNew) {
    callAfterLayout(node.interaction().appear);
  }
  node.element->build(node, *this);
  updateAttributes(node);
}

void BuildPass::updateAttributes(Node& node) {
  AttributeWriter writer{node.environment->appearance, context_.colors};
  node.element->attributes(node, writer);
  const std::vector<double>& values = writer.values;
  const bool isOtherKind = values.size() != node.attributes.size();
  if (isOtherKind) {
    node.attributes.resize(values.size());
  }
  bool hasChanged = isOtherKind;
  for (std::size_t index = 0; index < values.size(); ++index) {
    AnimatedValue& attribute = node.attributes[index];
    hasChanged = hasChanged || attribute.target() != values[index];
    if (node.isNew || isOtherKind) {
      attribute.jump(values[index]);
    } else {
      attribute.set(values[index], node.curve, context_.now);
    }
  }
  node.trace.isMade = node.isNew;
  node.trace.hasNewAttributes = hasChanged;
}

void BuildPass::enter(Node& node, bool isMade) {
  if (!isMade) {
    // It was leaving and comes back.
    visitNodes(node, [&](const Node& back) { callAfterLayout(back.interaction().appear); });
  }
  if (Node* transitioning = transitionNode(node)) {
    if (isMade) {
      transitioning->presence.jump(0);
    }
    transitioning->presence.set(1, node.parent->curve, context_.now);
  }
}

void BuildPass::remove(Node& parent, std::unique_ptr<Node> node) {
  visitNodes(*node, [](Node& gone) {
    gone.isPressed = false;
    gone.trace = {};
  });
  Node* const transitioning = transitionNode(*node);
  if (transitioning != nullptr && parent.curve) {
    transitioning->presence.set(0, parent.curve, context_.now);
    parent.leaving.push_back(std::move(node));
    return;
  }
  context_.damage.add(node->inkWithDescendants);
}

void BuildPass::callAfterLayout(const std::function<void()>& handler) {
  if (handler) {
    actions_.push_back(handler);
  }
}

}  // namespace orvane::ui
