// Text in the inherited font and colour. It wraps in the width it is offered, and is cut with an
// ellipsis where it is offered too little height or its line limit ends it; then the host's tooltip
// over it, or over the control that it is in, tells it in full.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

class Text : public View {
 public:
  explicit Text(std::string text);
};

}  // namespace orvane::ui
