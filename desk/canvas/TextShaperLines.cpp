// Pango breaks each paragraph into lines; each line is then measured separately, as it is drawn.
#include <algorithm>
#include <cmath>
#include <vector>

#include <pango/pango.h>

#include "Orvane/ui/draw/Truncation.hpp"
#include "desk/canvas/TextShaper.hpp"

namespace orvane::desk {
namespace {

// Wider than any text; pango represents widths as an int in 1/1024 of a point.
constexpr double widestLine = 1.0e6;

/// The byte offsets between the characters of a text, from 0 to its length.
std::vector<std::size_t> characterOffsets(const TextShaper& shaper, const std::string& text,
                                          const ui::Font& font) {
  const ObjectPointer<PangoLayout> shaped = shaper.shape(text, font);
  int count = 0;
  const PangoLogAttr* attributes = pango_layout_get_log_attrs_readonly(shaped.get(), &count);
  std::vector<std::size_t> offsets;
  const char* place = text.c_str();
  for (int index = 0; index < count; ++index) {
    if (attributes[index].is_cursor_position != 0) {
      offsets.push_back(static_cast<std::size_t>(place - text.c_str()));
    }
    if (index + 1 < count) {
      place = g_utf8_next_char(place);
    }
  }
  return offsets;
}

}  // namespace

ui::TextLayout TextShaper::layout(const std::string& text, const ui::Font& font,
                                  double maximumWidth, ui::LineLimit limit) {
  const double allowed = maximumWidth > 0 ? std::min(maximumWidth, widestLine) : 0.0;
  return layouts_.get(cacheKey(text, font.size, font.weight, font.tracking, allowed,
                               std::max(limit.lines, 0), limit.truncation),
                      [&] { return breakText(text, font, allowed, limit); });
}

ui::TextLayout TextShaper::breakText(const std::string& text, const ui::Font& font,
                                     double maximumWidth, ui::LineLimit limit) const {
  // The offsets of breaks refer to the text that pango has seen.
  const std::string source = validText(text);
  ui::TextLayout layout;
  std::size_t from = 0;
  while (true) {
    const std::size_t feed = source.find('\n', from);
    const bool isLastParagraph = feed == std::string::npos;
    breakParagraph(source.substr(from, isLastParagraph ? feed : feed - from), font, maximumWidth,
                   limit, layout);
    const bool isFull = limit.lines > 0 && static_cast<int>(layout.lines.size()) >= limit.lines;
    if (isLastParagraph || isFull) {
      if (!isLastParagraph && !layout.isTruncated) {
        layout.lines.back() =
            cutLine(layout.lines.back().text, font, maximumWidth, limit.truncation);
        layout.isTruncated = true;
      }
      layout.lineHeight = ui::lineHeightFor(layout.ascent, layout.lineHeight - layout.ascent);
      return layout;
    }
    from = feed + 1;
  }
}

void TextShaper::breakParagraph(const std::string& paragraph, const ui::Font& font,
                                double maximumWidth, ui::LineLimit limit,
                                ui::TextLayout& layout) const {
  // Text that fits on one line has no breaks.
  if (measure(paragraph, font).width <= maximumWidth) {
    addLine(paragraph, font, layout);
    return;
  }
  const ObjectPointer<PangoLayout> shaped = shape(paragraph, font);
  pango_layout_set_wrap(shaped.get(), PANGO_WRAP_WORD_CHAR);
  pango_layout_set_width(shaped.get(), static_cast<int>(std::ceil(maximumWidth * PANGO_SCALE)));
  const int count = pango_layout_get_line_count(shaped.get());
  for (int index = 0; index < count; ++index) {
    PangoLayoutLine* line = pango_layout_get_line_readonly(shaped.get(), index);
    const auto start = static_cast<std::size_t>(pango_layout_line_get_start_index(line));
    const bool isLast = limit.lines > 0 && static_cast<int>(layout.lines.size()) + 1 == limit.lines;
    const std::string rest = paragraph.substr(start);
    if (isLast && (index + 1 < count || measure(rest, font).width > maximumWidth)) {
      addLine(cutLine(rest, font, maximumWidth, limit.truncation).text, font, layout);
      layout.isTruncated = true;
      return;
    }
    const auto length = static_cast<std::size_t>(pango_layout_line_get_length(line));
    const std::string part = paragraph.substr(start, length);
    addLine(index + 1 < count ? ui::withoutTrailingBlanks(part) : part, font, layout);
  }
}

ui::TextLine TextShaper::cutLine(const std::string& rest, const ui::Font& font, double maximumWidth,
                                 ui::TruncationMode mode) const {
  const auto widthOf = [&](const std::string& part) { return measure(part, font).width; };
  const std::string line =
      ui::truncatedLine(rest, characterOffsets(*this, rest, font), mode, maximumWidth, widthOf);
  return {line, widthOf(line)};
}

void TextShaper::addLine(const std::string& line, const ui::Font& font,
                         ui::TextLayout& layout) const {
  const LineMetrics metrics = measure(line, font);
  layout.lines.push_back({line, metrics.width});
  // All lines share the metrics of the tallest, so that lines with Chinese characters have the same
  // distance as the others.
  const double descent =
      std::max(layout.lineHeight - layout.ascent, metrics.height - metrics.ascent);
  layout.ascent = std::max(layout.ascent, metrics.ascent);
  layout.lineHeight = layout.ascent + descent;
}

}  // namespace orvane::desk
