// One run of reconciliation: matches descriptions with retained nodes, makes the missing ones, and
// lets go of those that are no longer described.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "Orvane/ui/views/Node.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

class Builder {
 public:
  struct Settings {
    double now;
    const ColorResolver* resolver;
    // Counts the nodes ever made; the host keeps it.
    std::uint64_t* nodeCount;
    // The explicit animation of this update.
    std::optional<Curve> curve;
  };

  explicit Builder(Settings settings) : settings_(settings), curve_(settings.curve) {}

  // Makes or updates the root of the tree.
  void root(std::unique_ptr<Node>& node, const View& view,
            const std::shared_ptr<const Environment>& environment);

  // Makes the node's children be these views; an empty view makes no node.
  void children(Node& node, const std::vector<View>& views,
                const std::shared_ptr<const Environment>& environment);
  // The same for a container, in which the members of a group take part like any other child.
  void members(Node& node, const std::vector<View>& views,
               const std::shared_ptr<const Environment>& environment);

  // From here to the end of the scope, changes travel along the curve; without one they do not
  // travel.
  class CurveScope {
   public:
    CurveScope(Builder& builder, const std::optional<Curve>& curve)
        : builder_(builder), previous_(builder.curve_) {
      builder.curve_ = curve;
    }
    CurveScope(const CurveScope&) = delete;
    CurveScope& operator=(const CurveScope&) = delete;
    ~CurveScope() { builder_.curve_ = previous_; }

   private:
    Builder& builder_;
    std::optional<Curve> previous_;
  };

  // To be run when the layout that follows is done.
  void afterLayout(std::function<void()> action) { actions_.push_back(std::move(action)); }
  std::vector<std::function<void()>> takeActions() { return std::move(actions_); }
  // To be scrolled into sight when the layout that follows is done, along the curve if there is
  // one.
  void scrollIntoView(Node& node, const std::optional<Curve>& curve) {
    scrollTargets_.push_back({&node, curve});
  }
  struct ScrollTarget {
    Node* node;
    std::optional<Curve> curve;
  };
  const std::vector<ScrollTarget>& scrollTargets() const { return scrollTargets_; }
  // What removed nodes had painted.
  const std::vector<Rect>& removedInk() const { return removedInk_; }

 private:
  struct Description {
    NodeKey key;
    const View* view;
  };

  static std::vector<Description> describe(const std::vector<View>& views, bool spreadsGroups);
  void reconcile(Node& node, const std::vector<Description>& wanted,
                 const std::shared_ptr<const Environment>& environment);
  std::unique_ptr<Node> take(std::vector<std::unique_ptr<Node>>& from, const Description& wanted,
                             std::size_t hint);
  std::unique_ptr<Node> make(Node* parent, const NodeKey& key);
  void update(Node& node, const View& view, const std::shared_ptr<const Environment>& environment);
  void updateAttributes(Node& node);
  void enter(Node& node, bool isMade);
  void remove(Node& parent, std::unique_ptr<Node> node);

  Settings settings_;
  std::optional<Curve> curve_;
  std::vector<std::function<void()>> actions_;
  std::vector<ScrollTarget> scrollTargets_;
  std::vector<Rect> removedInk_;
};

}  // namespace orvane::ui
