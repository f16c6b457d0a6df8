// The retained nodes of a host, and calls of their handlers.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "Orvane/ui/host/HostLink.hpp"

namespace orvane::ui {

struct Node;

/// Any handler may destroy the host, and the tree with it.
struct RetainedTree {
  /// Null before the first update.
  std::unique_ptr<Node> root;
  /// The time of the presentation, as passed to ViewHost::tick().
  double now = 0;
  std::shared_ptr<HostLink> link;

  /// The node with the id, or null. Leaving nodes are not found.
  [[nodiscard]] Node* find(std::uint64_t id) const;
  /// Calls the handler, if it is set. False when it has destroyed the host.
  bool call(const std::function<void()>& handler) const;
  /// Runs the action of the control with the id. False when there is none or it is disabled.
  bool activate(std::uint64_t id) const;
};

}  // namespace orvane::ui
