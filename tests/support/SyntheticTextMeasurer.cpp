// Greedy line breaking over characters of known widths.
#include "tests/support/SyntheticTextMeasurer.hpp"

#include <algorithm>
#include <numeric>
#include <span>
#include <string_view>
#include <vector>

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

using Characters = std::span<const Character>;

double width(Characters line) {
  return std::accumulate(line.begin(), line.end(), 0.0, [](double sum, const Character& character) {
    return sum + character.width;
  });
}

TextLine makeLine(Characters line) {
  std::string text;
  for (const Character& character : line) {
    text += character.bytes;
  }
  return {text, width(line)};
}

// The length of the first line: up to the last break that fits, or else as many characters as fit,
// but at least one.
std::size_t lengthOfLine(Characters all, double maximumWidth) {
  std::size_t breakAt = 0;
  double used = 0;
  for (std::size_t index = 0; index < all.size(); ++index) {
    const auto mayBreakAt = [](const Character& character) {
      return character.isBlank() || character.isWide;
    };
    if (index > 0 && (mayBreakAt(all[index]) || mayBreakAt(all[index - 1]))) {
      breakAt = index;
    }
    used += all[index].width;
    if (used > maximumWidth && !all[index].isBlank()) {
      return std::max<std::size_t>(breakAt > 0 ? breakAt : index, 1);
    }
  }
  return all.size();
}

TextLine truncated(const std::string& text, const Font& font, double maximumWidth,
                   TruncationMode mode) {
  std::vector<std::size_t> places{0};
  for (const Character& character : characters(text, font)) {
    places.push_back(places.back() + character.bytes.size());
  }
  const auto widthOf = [&font](const std::string& part) { return width(characters(part, font)); };
  const std::string line = truncatedLine(text, places, mode, maximumWidth, widthOf);
  return {line, widthOf(line)};
}

void breakParagraph(std::string_view text, const Font& font, double maximumWidth, LineLimit limit,
                    TextLayout& layout) {
  const std::vector<Character> all = characters(text, font);
  Characters rest = all;
  do {
    const bool isLast = limit.lines > 0 && static_cast<int>(layout.lines.size()) + 1 == limit.lines;
    if (isLast && width(rest) > maximumWidth) {
      layout.lines.push_back(truncated(makeLine(rest).text, font, maximumWidth, limit.truncation));
      layout.isTruncated = true;
      return;
    }
    const std::size_t length = lengthOfLine(rest, maximumWidth);
    Characters line = rest.first(length);
    rest = rest.subspan(length);
    while (!rest.empty() && !line.empty() && line.back().isBlank()) {
      line = line.first(line.size() - 1);
    }
    layout.lines.push_back(makeLine(line));
    while (!rest.empty() && rest.front().isBlank()) {
      rest = rest.subspan(1);
    }
  } while (!rest.empty());
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
