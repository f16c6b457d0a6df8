// The retained nodes of a host: finding them, and calling their handlers.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/ui/host/HostServices.hpp"

namespace orvane::ui {

struct Node;

struct Tooltip {
  std::string text;
  /// The view it belongs to, in host coordinates.
  Rect frame;
};

/// Points are in host coordinates. Any handler may destroy the host, and the tree with it.
struct RetainedTree {
  /// Null before the first update.
  std::unique_ptr<Node> root;
  /// The time of the presentation, as passed to ViewHost::tick().
  double now = 0;
  std::shared_ptr<HostLink> link;

  /// The node with the id, or null. Leaving nodes are not found.
  [[nodiscard]] Node* find(std::uint64_t id) const;
  /// The nodes at the point, as presented, topmost first. Invisible nodes and all below them are
  /// left out.
  [[nodiscard]] std::vector<Node*> hitTest(Point point) const;
  /// The topmost node at the point that takes presses, or null.
  [[nodiscard]] Node* pressTarget(Point point) const;
  /// The tooltip of the topmost view at the point that has one; otherwise the full text of a
  /// truncated text there, or of any in the control there.
  [[nodiscard]] std::optional<Tooltip> tooltipAt(Point point) const;

  /// Calls the handler, if it is set. False when it has destroyed the host.
  bool call(const std::function<void()>& handler) const;
  /// Runs the action of the control with the id. False when there is none or it is disabled.
  bool activate(std::uint64_t id) const;
};

}  // namespace orvane::ui
