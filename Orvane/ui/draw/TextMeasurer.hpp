// Measures text and breaks it into lines, apart from drawing it, so that layout needs no canvas.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/draw/Truncation.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

struct TextLine {
  /// The argument of Canvas::text: without the line break and the blanks before it, with an
  /// ellipsis where the text is truncated.
  std::string text;
  double width = 0;
};

/// The distance between baselines: a whole number of points, as in AppKit's labels.
[[nodiscard]] inline double lineHeightFor(double ascent, double descent) {
  // A rounding error of the sum does not count as another point.
  constexpr double slack = 1.0e-6;
  return std::ceil(ascent + descent - slack);
}

/// A paragraph broken into lines. The baseline of line i is ascent + i * lineHeight below the top.
struct TextLayout {
  std::vector<TextLine> lines;
  double lineHeight = 0;
  double ascent = 0;
  /// Whether the line limit cut the text.
  bool isTruncated = false;

  /// The width of the widest line, and the height of all lines.
  [[nodiscard]] Size size() const {
    Size result{0, lineHeight * static_cast<double>(lines.size())};
    for (const TextLine& line : lines) {
      result.width = std::max(result.width, line.width);
    }
    return result;
  }
};

class TextMeasurer {
 public:
  TextMeasurer() = default;
  TextMeasurer(const TextMeasurer&) = delete;
  TextMeasurer& operator=(const TextMeasurer&) = delete;
  virtual ~TextMeasurer() = default;

  /// Breaks UTF-8 text at line feeds and, where a line exceeds the maximum width, between words
  /// (between characters within a word that is too wide, and between Chinese characters). Text
  /// beyond the limit, if it is above 0, is replaced by "…". An empty text has one empty line. The
  /// width may be infinite. A width that is negative or not a number counts as 0; then every line
  /// contains at least one character.
  [[nodiscard]] virtual TextLayout layout(const std::string& text, const Font& font,
                                          double maximumWidth, LineLimit limit) = 0;
};

}  // namespace orvane::ui
