// Matching by explicit id, else by kind and place; transitions of what comes and goes.
#include "Orvane/ui/host/Builder.hpp"

#include <typeinfo>

#include "Orvane/ui/views/Attributes.hpp"
#include "Orvane/ui/views/Group.hpp"
#include "Orvane/ui/views/LifecycleElement.hpp"

namespace orvane::ui {

void Builder::root(std::unique_ptr<Node>& node, const View& view,
                   const std::shared_ptr<const Environment>& environment) {
  if (!node) {
    node = make(nullptr, {});
    node->element = std::make_shared<GroupElement>(std::vector<View>{});
  }
  // A root of the kit's own stays for good, so that even the outermost view can come and go.
  update(*node, Group({view}), environment);
}

std::vector<Builder::Description> Builder::describe(const std::vector<View>& views,
                                                    bool spreadsGroups) {
  // The places of a flat list of children; the contents of a group count within the group's place.
  std::vector<Description> result;
  int slot = 0;
  for (const View& view : views) {
    const auto* group =
        spreadsGroups ? dynamic_cast<const GroupElement*>(view.element().get()) : nullptr;
    if (group != nullptr) {
      int place = 0;
      for (const View& member : group->members()) {
        if (!member.isEmpty()) {
          const bool isNamed = !member.explicitId().empty();
          result.push_back({{slot, isNamed ? -1 : place, member.explicitId()}, &member});
        }
        ++place;
      }
    } else if (!view.isEmpty()) {
      const bool isNamed = !view.explicitId().empty();
      result.push_back({{isNamed ? -1 : slot, -1, view.explicitId()}, &view});
    }
    ++slot;
  }
  return result;
}

void Builder::children(Node& node, const std::vector<View>& views,
                       const std::shared_ptr<const Environment>& environment) {
  reconcile(node, describe(views, false), environment);
}

void Builder::members(Node& node, const std::vector<View>& views,
                      const std::shared_ptr<const Environment>& environment) {
  reconcile(node, describe(views, true), environment);
}

void Builder::reconcile(Node& node, const std::vector<Description>& wanted,
                        const std::shared_ptr<const Environment>& environment) {
  std::vector<std::unique_ptr<Node>> old = std::move(node.children);
  node.children.clear();
  node.children.reserve(wanted.size());
  const bool parentIsNew = node.isNew;
  for (const Description& description : wanted) {
    std::unique_ptr<Node> child = take(old, description, node.children.size());
    const bool isEntering = !child;
    if (!child) {
      child = take(node.leaving, description, node.leaving.size());
    }
    const bool isMade = !child;
    if (!child) {
      child = make(&node, description.key);
    }
    child->key = description.key;
    update(*child, *description.view, environment);
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

std::unique_ptr<Node> Builder::take(std::vector<std::unique_ptr<Node>>& from,
                                    const Description& wanted, std::size_t hint) {
  const Element& element = *wanted.view->element();
  const auto fits = [&](const std::unique_ptr<Node>& node) {
    if (!node || !(node->key == wanted.key)) {
      return false;
    }
    const Element& held = *node->element;
    return typeid(held) == typeid(element);
  };
  // Usually nothing has moved, and the node stands where it stood.
  if (hint < from.size() && fits(from[hint])) {
    return std::move(from[hint]);
  }
  for (auto candidate = from.begin(); candidate != from.end(); ++candidate) {
    if (fits(*candidate)) {
      std::unique_ptr<Node> node = std::move(*candidate);
      from.erase(candidate);
      return node;
    }
  }
  return nullptr;
}

std::unique_ptr<Node> Builder::make(Node* parent, const NodeKey& key) {
  auto node = std::make_unique<Node>(++*settings_.nodeCount, parent);
  node->key = key;
  return node;
}

void Builder::update(Node& node, const View& view,
                     const std::shared_ptr<const Environment>& environment) {
  node.element = view.element();
  node.environment = environment;
  node.curve = curve_;
  node.measured.clear();
  node.element->build(node, *this);
  updateAttributes(node);
}

void Builder::updateAttributes(Node& node) {
  AttributeWriter writer(node.environment->appearance, *settings_.resolver);
  node.element->attributes(node, writer);
  const std::vector<double>& values = writer.values();
  const bool isOtherKind = values.size() != node.attributes.size();
  if (isOtherKind) {
    node.attributes.resize(values.size());
  }
  for (std::size_t index = 0; index < values.size(); ++index) {
    if (node.isNew || isOtherKind) {
      node.attributes[index].jump(values[index]);
    } else {
      node.attributes[index].set(values[index], node.curve, settings_.now);
    }
  }
}

void Builder::enter(Node& node, bool isMade) {
  if (!isMade) {
    // It was on its way out and had already been told that it went.
    visitNodes(node, [&](Node& back) {
      const auto* lifecycle = dynamic_cast<const LifecycleElement*>(back.element.get());
      if (lifecycle != nullptr && lifecycle->onAppear()) {
        afterLayout(lifecycle->onAppear());
      }
    });
  }
  if (Node* moved = transitionNode(node)) {
    if (isMade) {
      moved->presence.jump(0);
    }
    moved->presence.set(1, curve_, settings_.now);
  }
}

void Builder::remove(Node& parent, std::unique_ptr<Node> node) {
  visitNodes(*node, [](Node& gone) { gone.isPressed = false; });
  Node* const moved = transitionNode(*node);
  if (moved != nullptr && curve_) {
    moved->presence.set(0, curve_, settings_.now);
    parent.leaving.push_back(std::move(node));
    return;
  }
  removedInk_.push_back(node->inkWithDescendants);
}

}  // namespace orvane::ui
