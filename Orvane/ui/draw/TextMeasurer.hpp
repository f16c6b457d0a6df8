// Measures and breaks text, apart from drawing it, so that layout can be tested without a canvas.
#pragma once

#include <string>
#include <vector>

#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/draw/LineLimit.hpp"
#include "Orvane/ui/layout/Size.hpp"

namespace orvane::ui {

struct TextLine {
  // What Canvas::text is given: without the line break, without trailing blanks that were broken
  // at, with an ellipsis where the text was cut.
  std::string text;
  double width = 0;

  friend bool operator==(const TextLine&, const TextLine&) = default;
};

// From one line to the next are whole points, as in the system's own labels.
double lineHeightFor(double ascent, double descent);

// A broken paragraph. The baseline of line i is ascent + i * lineHeight below the top.
struct TextLayout {
  std::vector<TextLine> lines;
  double lineHeight = 0;
  double ascent = 0;
  // True when a line limit cut the text.
  bool isTruncated = false;

  // The widest line, and all lines' height.
  Size size() const;
};

class TextMeasurer {
 public:
  TextMeasurer() = default;
  TextMeasurer(const TextMeasurer&) = delete;
  TextMeasurer& operator=(const TextMeasurer&) = delete;
  virtual ~TextMeasurer() = default;

  // Breaks UTF-8 text at line feeds and, where a line is wider than the maximum width, between
  // words (between characters where a word alone is too wide, and between Chinese characters). The
  // width may be infinite: no breaking. A limit above 0 allows that many lines; the last one is
  // then cut with "…" if more text follows or a single line is too wide. An empty text has one
  // empty line. A width that is negative or not a number counts as 0; then every line holds at
  // least one character.
  virtual TextLayout layout(const std::string& text, const Font& font, double maximumWidth,
                            LineLimit limit) = 0;
};

}  // namespace orvane::ui
