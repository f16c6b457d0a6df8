// Greedy line breaking over characters of known widths.
#include "tests/support/SyntheticTextMeasurer.hpp"

#include <string_view>

#include "Orvane/ui/draw/Truncation.hpp"

namespace orvane::ui {

namespace {

struct Character {
  std::string_view bytes;
  double width = 0;
  bool isWide = false;

  bool isBlank() const { return bytes == " "; }
};

// Splits UTF-8 into characters. Sequences of three bytes and more count as wide, except for general
// punctuation such as the ellipsis and curly quotes (lead byte E2).
std::vector<Character> characters(std::string_view text, const Font& font) {
  std::vector<Character> result;
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = start + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
      ++end;
    }
    const auto lead = static_cast<unsigned char>(text[start]);
    const bool isWide = lead >= 0xE3U;
    const double width = (isWide ? font.size : font.size / 2) + font.tracking;
    result.push_back({text.substr(start, end - start), width, isWide});
    start = end;
  }
  return result;
}

double width(const std::vector<Character>& all, std::size_t from, std::size_t to) {
  double result = 0;
  for (std::size_t index = from; index < to; ++index) {
    result += all[index].width;
  }
  return result;
}

TextLine makeLine(const std::vector<Character>& all, std::size_t from, std::size_t to) {
  TextLine line;
  for (std::size_t index = from; index < to; ++index) {
    line.text += all[index].bytes;
  }
  line.width = width(all, from, to);
  return line;
}

// The end of the line that begins at `from`: the last break that fits, or else as many characters
// as fit, but at least one.
std::size_t lineEnd(const std::vector<Character>& all, std::size_t from, double maximumWidth) {
  std::size_t breakAt = 0;
  double used = 0;
  for (std::size_t index = from; index < all.size(); ++index) {
    const Character& character = all[index];
    const bool mayBreakBefore = index > from && (character.isBlank() || character.isWide ||
                                                 all[index - 1].isBlank() || all[index - 1].isWide);
    if (mayBreakBefore) {
      breakAt = index;
    }
    used += character.width;
    if (used > maximumWidth && !character.isBlank()) {
      if (breakAt > from) {
        return breakAt;
      }
      return index > from ? index : from + 1;
    }
  }
  return all.size();
}

double widthOf(const std::string& text, const Font& font) {
  const std::vector<Character> all = characters(text, font);
  return width(all, 0, all.size());
}

TextLine truncated(const std::string& text, const Font& font, double maximumWidth,
                   TruncationMode mode) {
  std::vector<std::size_t> places{0};
  for (const Character& character : characters(text, font)) {
    places.push_back(places.back() + character.bytes.size());
  }
  const std::string line =
      truncatedLine(text, places, mode, maximumWidth,
                    [&font](const std::string& part) { return widthOf(part, font); });
  return {line, widthOf(line, font)};
}

void breakParagraph(std::string_view text, const Font& font, double maximumWidth, LineLimit limit,
                    TextLayout& layout) {
  const std::vector<Character> all = characters(text, font);
  std::size_t from = 0;
  do {
    const bool isLast = limit.lines > 0 && static_cast<int>(layout.lines.size()) + 1 == limit.lines;
    if (isLast && width(all, from, all.size()) > maximumWidth) {
      layout.lines.push_back(
          truncated(makeLine(all, from, all.size()).text, font, maximumWidth, limit.truncation));
      layout.isTruncated = true;
      return;
    }
    const std::size_t end = lineEnd(all, from, maximumWidth);
    std::size_t trimmed = end;
    while (end < all.size() && trimmed > from && all[trimmed - 1].isBlank()) {
      --trimmed;
    }
    layout.lines.push_back(makeLine(all, from, trimmed));
    from = end;
    while (from < all.size() && all[from].isBlank()) {
      ++from;
    }
  } while (from < all.size());
}

}  // namespace

TextLayout SyntheticTextMeasurer::layout(const std::string& text, const Font& font,
                                         double maximumWidth, LineLimit limit) {
  const double allowed = maximumWidth > 0 ? maximumWidth : 0;
  TextLayout layout{
      .lines = {}, .lineHeight = font.size, .ascent = font.size * 0.75, .isTruncated = false};
  std::string_view rest = text;
  while (true) {
    const std::size_t feed = rest.find('\n');
    breakParagraph(rest.substr(0, feed), font, allowed, limit, layout);
    const bool isFull = limit.lines > 0 && static_cast<int>(layout.lines.size()) >= limit.lines;
    if (feed == std::string_view::npos) {
      return layout;
    }
    if (isFull) {
      if (!layout.isTruncated) {
        TextLine& last = layout.lines.back();
        last = truncated(last.text, font, allowed, limit.truncation);
        layout.isTruncated = true;
      }
      return layout;
    }
    rest.remove_prefix(feed + 1);
  }
}

}  // namespace orvane::ui
