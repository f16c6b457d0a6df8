// A font for layout tests that can be computed in the head: every character is half as wide as the
// font's size (Chinese characters as wide as it), a line is as high as the size, and the baseline
// lies three quarters down. Tracking is added to every character.
#pragma once

#include "Orvane/ui/draw/TextMeasurer.hpp"

namespace orvane::ui {

class SyntheticTextMeasurer : public TextMeasurer {
 public:
  TextLayout layout(const std::string& text, const Font& font, double maximumWidth,
                    LineLimit limit) override;
};

}  // namespace orvane::ui
