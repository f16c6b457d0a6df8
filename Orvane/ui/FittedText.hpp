// One line of text that is set smaller, rather than cut, where it is offered too little width.
#pragma once

#include <string>

#include "Orvane/ui/View.hpp"

namespace orvane::ui {

// In the inherited font and colour. Where the line is too wide, the font shrinks in quarters of a
// point, down to this share of its size (from 0 to 1); what is too wide even then is cut with an
// ellipsis. AppKit and SwiftUI know the same as a minimum scale factor.
class FittedText : public View {
 public:
  FittedText(std::string text, double minimumScale);
};

}  // namespace orvane::ui
