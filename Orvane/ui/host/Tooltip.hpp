// Tooltips, of views and of truncated texts.
#pragma once

#include <optional>
#include <string>

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

struct RetainedTree;

struct Tooltip {
  std::string text;
  /// The view it belongs to, in host coordinates.
  Rect frame;
};

/// The tooltip of the topmost view at the point (host coordinates) that has one; otherwise the full
/// text of a truncated text there, or of any in the control there.
[[nodiscard]] std::optional<Tooltip> tooltipAt(const RetainedTree& tree, Point point);

}  // namespace orvane::ui
