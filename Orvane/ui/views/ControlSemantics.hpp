// How controls describe themselves in the semantics tree.
#pragma once

#include <vector>

#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

// One element for the whole control. Its label is what its contents say, in their order, until a
// modifier gives it another one; its contents are not elements of their own.
SemanticsNode controlSemantics(const Node& node, Role role, const Interaction& interaction,
                               const std::vector<SemanticsNode>& contents);

// What the node and everything below it describe, as it will be when all that fades has arrived.
std::vector<SemanticsNode> describedBy(const Node& node, double now);

// The tree of what is presented, as it will be when all that fades has arrived; the root is a
// group. `focusedId` is the node with the keyboard focus, or 0.
SemanticsNode collectSemantics(const Node& root, double now, std::uint64_t focusedId);

}  // namespace orvane::ui
