// A host's tree as text, for debuggers and failing tests.
#pragma once

#include <string>

namespace orvane::ui {

struct RetainedTree;

/// One line per node, indented by depth: its kind, id and frame as presented (x, y, width and
/// height in points, host coordinates), what each pass did with it last, and its element in the
/// semantics tree. docs/ui.md explains the words. `focusedId` is the node with the focus, or 0.
[[nodiscard]] std::string dumpTree(const RetainedTree& tree, std::uint64_t focusedId);

}  // namespace orvane::ui
