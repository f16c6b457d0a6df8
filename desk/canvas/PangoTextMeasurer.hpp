// Measures and breaks text in the pinned fonts, with pango's rules for line breaks.
#pragma once

#include <string>

#include "Orvane/ui/draw/TextMeasurer.hpp"
#include "desk/canvas/TextShaper.hpp"

namespace orvane::desk {

class PangoTextMeasurer : public ui::TextMeasurer {
 public:
  // A cache, because a layout pass measures the same paragraph many times.
  ui::TextLayout layout(const std::string& text, const ui::Font& font, double maximumWidth,
                        ui::LineLimit limit) override;

 private:
  ui::TextLayout breakText(const std::string& text, const ui::Font& font, double maximumWidth,
                           ui::LineLimit limit) const;
  void breakParagraph(const std::string& paragraph, const ui::Font& font, double maximumWidth,
                      ui::LineLimit limit, ui::TextLayout& layout) const;
  ui::TextLine cutLine(const std::string& rest, const ui::Font& font, double maximumWidth,
                       ui::TruncationMode mode) const;
  void addLine(const std::string& line, const ui::Font& font, ui::TextLayout& layout) const;

  TextShaper shaper_;
  Cache<ui::TextLayout> layouts_{4096};
};

}  // namespace orvane::desk
