// Text in the pinned fonts: TextShaper shapes a line into positioned glyphs, for both measuring and
// drawing, and breaks paragraphs into lines by pango's rules.
#pragma once

#include <string>

#include "Orvane/ui/draw/TextMeasurer.hpp"
#include "desk/canvas/Mask.hpp"

namespace orvane::desk {

/// Sizes of a line in points.
struct LineMetrics {
  double width = 0;
  double ascent = 0;
  double height = 0;
};

/// The text with every invalid byte replaced by U+FFFD.
std::string validText(const std::string& text);

class TextShaper : public ui::TextMeasurer {
 public:
  TextShaper();

  /// A pango layout without a width. Invalid UTF-8 is replaced first.
  ObjectPointer<PangoLayout> shape(const std::string& text, const ui::Font& font) const;

  /// Cached, because a layout pass measures the same paragraph many times.
  ui::TextLayout layout(const std::string& text, const ui::Font& font, double maximumWidth,
                        ui::LineLimit limit) override;

  /// The advance width of a line without line breaks, and the height and ascent of its fonts, with
  /// the Mac's metrics for Chinese. An empty line has the height of the interface font. Results are
  /// cached.
  LineMetrics measure(const std::string& line, const ui::Font& font) const;

  /// The coverage of a line whose baseline starts at the placement's anchor; without a surface when
  /// nothing is visible.
  Mask makeMask(const std::string& line, const ui::Font& font,
                const PixelPlacement& placement) const;

 private:
  LineMetrics measured(const std::string& line, const ui::Font& font) const;
  ui::TextLayout breakText(const std::string& text, const ui::Font& font, double maximumWidth,
                           ui::LineLimit limit) const;
  void breakParagraph(const std::string& paragraph, const ui::Font& font, double maximumWidth,
                      ui::LineLimit limit, ui::TextLayout& layout) const;
  ui::TextLine cutLine(const std::string& rest, const ui::Font& font, double maximumWidth,
                       ui::TruncationMode mode) const;
  void addLine(const std::string& line, const ui::Font& font, ui::TextLayout& layout) const;

  ObjectPointer<PangoContext> context_;
  mutable Cache<LineMetrics> measured_{4096};
  Cache<ui::TextLayout> layouts_{4096};
};

}  // namespace orvane::desk
