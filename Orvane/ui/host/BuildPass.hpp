// The build pass: matches views with retained nodes, makes the missing nodes, and removes those
// whose view is gone.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "Orvane/ui/host/Damage.hpp"
#include "Orvane/ui/views/Node.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

class BuildPass {
 public:
  struct Context {
    double now;
    const ColorResolver& colors;
    /// The number of nodes made so far, which makes ids unique.
    std::uint64_t& nodeCount;
    /// Receives what removed nodes had painted.
    Damage& damage;
    /// The animation of the whole update.
    std::optional<Curve> curve;
  };
  using ScrollTarget = std::pair<const Node*, std::optional<Curve>>;

  explicit BuildPass(const Context& context) : context_(context) {}

  /// Makes or updates the root of the tree.
  void root(std::unique_ptr<Node>& node, const View& view,
            const std::shared_ptr<const Environment>& environment);

  /// For Element::build. Makes the views the children of the node; empty views have no node. They
  /// inherit the node's environment, and changes in them follow the node's curve.
  void children(Node& node, std::span<const View> views);

  /// Scrolls the node into view after layout: along the curve, or at once.
  void scrollIntoView(const Node& node, const std::optional<Curve>& curve) {
    scrollTargets_.emplace_back(&node, curve);
  }
  [[nodiscard]] const std::vector<ScrollTarget>& scrollTargets() const { return scrollTargets_; }
  /// The handlers of views that appeared, to be called after layout.
  [[nodiscard]] std::vector<std::function<void()>> takeActions() { return std::move(actions_); }

 private:
  static std::unique_ptr<Node> take(std::vector<std::unique_ptr<Node>>& from, const NodeKey& key,
                                    const Element& element, std::size_t hint);
  void update(Node& node, const View& view, const std::shared_ptr<const Environment>& environment);
  void updateAttributes(Node& node);
  void enter(Node& node, bool isMade);
  void remove(Node& parent, std::unique_ptr<Node> node);
  void callAfterLayout(const std::function<void()>& handler);

  Context context_;
  std::vector<std::function<void()>> actions_;
  std::vector<ScrollTarget> scrollTargets_;
};

}  // namespace orvane::ui
