// Shapes a line of text into positioned glyphs of the pinned fonts, for both measuring and drawing.
#pragma once

#include <string>

#include "Orvane/ui/draw/Font.hpp"
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

class TextShaper {
 public:
  TextShaper();

  /// A pango layout without a width. Invalid UTF-8 is replaced first.
  ObjectPointer<PangoLayout> layout(const std::string& text, const ui::Font& font) const;

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

  ObjectPointer<PangoContext> context_;
  mutable Cache<LineMetrics> measured_{4096};
};

}  // namespace orvane::desk
