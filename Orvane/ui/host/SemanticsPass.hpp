// The semantics pass: describes what is presented as a semantics tree. It changes nothing.
#pragma once

#include <vector>

#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

/// The elements of a node and of all nodes below it. Their frames are those presented; a view that
/// is fading in is included, one that is fading out is not.
[[nodiscard]] std::vector<SemanticsNode> semanticsOf(const Node& node, double now);

}  // namespace orvane::ui
