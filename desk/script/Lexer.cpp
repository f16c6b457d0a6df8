// The lexer splits a line of a script into words.
#include "desk/script/Lexer.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

#include "desk/quartz/Utf8.hpp"

namespace orvane::desk::script {

namespace {

bool isBlank(char character) {
  return character == ' ' || character == '\t';
}

bool isControl(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return (byte < 0x20 && character != '\t') || byte == 0x7F;
}

/// Columns count characters, from 1.
std::string atColumn(std::string_view line, std::size_t place) {
  const auto begins = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; };
  return " at column " + std::to_string(std::ranges::count_if(line.substr(0, place), begins) + 1);
}

Problem problemWithBytes(std::string_view line) {
  if (const auto place = Utf8::findInvalid(line)) {
    return "malformed UTF-8" + atColumn(line, *place);
  }
  const auto control = std::ranges::find_if(line, isControl);
  if (control != line.end()) {
    return "control character" + atColumn(line, static_cast<std::size_t>(control - line.begin()));
  }
  return std::nullopt;
}

/// Reads the word at `place` and moves `place` to its end. At an unterminated quote it returns
/// false and leaves `place` at the quote.
bool readWord(std::string_view line, std::size_t& place, Word& word) {
  constexpr std::string_view escapes = R"("\nt)";
  constexpr std::string_view replacements = "\"\\\n\t";
  word.begin = place;
  std::optional<std::size_t> quote;
  for (; place < line.size() && (quote || !isBlank(line[place])); ++place) {
    const char character = line[place];
    if (character == '"') {
      quote = quote ? std::nullopt : std::optional(place);
    } else if (!quote || character != '\\') {
      word.text += character;
    } else if (place + 1 < line.size()) {
      const std::size_t escape = escapes.find(line[place + 1]);
      if (escape != std::string_view::npos) {
        word.text += replacements[escape];
        ++place;
      } else if (!word.problem) {
        word.problem = "unknown escape" + atColumn(line, place);
      }
    }
  }
  word.end = place;
  place = quote.value_or(place);
  return !quote;
}

}  // namespace

LexedLine lexLine(std::string_view line) {
  LexedLine result;
  if ((result.problem = problemWithBytes(line))) {
    return result;
  }
  std::size_t place = 0;
  while (true) {
    while (place < line.size() && isBlank(line[place])) {
      ++place;
    }
    if (place == line.size() || line[place] == '#') {
      return result;
    }
    if (!readWord(line, place, result.words.emplace_back())) {
      result.problem = "unterminated quote" + atColumn(line, place);
      return result;
    }
  }
}

}  // namespace orvane::desk::script
