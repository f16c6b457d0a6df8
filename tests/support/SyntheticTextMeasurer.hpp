// A font for layout tests with round numbers: a character is half as wide as the font's size, a
// Chinese one as wide as the size, a line is as high as the size, and its ascent is three quarters
// of it. Tracking is added to every character.
#pragma once

#include "Orvane/ui/draw/TextMeasurer.hpp"

namespace orvane::ui {

class SyntheticTextMeasurer : public TextMeasurer {
 public:
  [[nodiscard]] TextLayout layout(const std::string& text, const Font& font, double maximumWidth,
                                  LineLimit limit) override;
};

}  // namespace orvane::ui
