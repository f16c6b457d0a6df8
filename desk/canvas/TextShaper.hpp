// Turns one line of text into placed glyphs of the pinned fonts. Measuring and drawing both go
// through here, so that what was measured is what is drawn.
#pragma once

#include <map>
#include <string>
#include <tuple>

#include "Orvane/ui/draw/Font.hpp"
#include "desk/canvas/CairoPointers.hpp"
#include "desk/canvas/MaskCache.hpp"
#include "desk/canvas/PixelPlacement.hpp"

namespace orvane::desk {

/// Sizes of a line in points.
struct LineMetrics {
  double width = 0;
  double ascent = 0;
  double height = 0;
};

/// The same text, with every byte that is no UTF-8 replaced by U+FFFD.
std::string validText(const std::string& text);

class TextShaper {
 public:
  TextShaper();

  /// A pango layout of UTF-8 text without a width. A text that is not valid is mended first.
  ObjectPointer<PangoLayout> layout(const std::string& text, const ui::Font& font) const;

  /// The advance width of a line without line breaks, and the height and ascent of the faces that
  /// it uses, those of the Mac's own for Chinese. An empty line has the height of the system face.
  /// Answers are kept: layout and the desktop ask for the same lines again and again.
  LineMetrics measure(const std::string& line, const ui::Font& font) const;

  /// The coverage of a line whose baseline starts on the placement's anchor; without a surface
  /// when there is nothing to see.
  Mask makeMask(const std::string& line, const ui::Font& font,
                const PixelPlacement& placement) const;

 private:
  using Question = std::tuple<std::string, double, ui::Weight, double>;

  LineMetrics measured(const std::string& line, const ui::Font& font) const;

  ObjectPointer<PangoContext> context_;
  mutable std::map<Question, LineMetrics> measured_;
};

}  // namespace orvane::desk
