// Finding the views at a point.
#pragma once

#include <vector>

#include "Orvane/ui/host/RetainedTree.hpp"
#include "Orvane/ui/layout/Point.hpp"

namespace orvane::ui {

/// Whether the point (host coordinates) is in the node's rectangle, as presented.
[[nodiscard]] bool covers(const Node& node, Point point);

/// The nodes at the point (host coordinates), as presented, topmost first. Invisible nodes, nodes
/// without hit testing and all below them are left out.
[[nodiscard]] std::vector<Node*> hitTest(const RetainedTree& tree, Point point);

/// The topmost node at the point that takes presses, or null.
[[nodiscard]] Node* pressTarget(const RetainedTree& tree, Point point);

}  // namespace orvane::ui
