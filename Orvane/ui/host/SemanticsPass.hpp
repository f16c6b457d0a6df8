// The semantics pass: describes what is presented as a semantics tree. It changes nothing.
#pragma once

#include <cstdint>
#include <vector>

#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

/// The elements of a node and of all nodes below it. Their frames are those presented; a view that
/// is fading in is included, one that is fading out is not.
[[nodiscard]] std::vector<SemanticsNode> semanticsOf(const Node& node, double now);

/// The whole tree. Its root is a group without a frame; `focusedId` is the node with the keyboard
/// focus, or 0.
[[nodiscard]] SemanticsNode semanticsTree(const Node& root, double now, std::uint64_t focusedId);

}  // namespace orvane::ui
