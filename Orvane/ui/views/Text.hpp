// Text in the inherited font and colour.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

/// Wraps in the proposed width. With too little height, or too many lines for its line limit, it is
/// truncated with an ellipsis; the host's tooltip over it, or over its control, is then the full
/// text.
struct [[nodiscard]] Text : View {
  explicit Text(std::string text);
};

}  // namespace orvane::ui
