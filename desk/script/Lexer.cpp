// The lexer splits a line of a script into words.
#include "desk/script/Lexer.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

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

/// Reads one word from its first character on.
class WordReader {
 public:
  WordReader(std::string_view line, std::size_t begin) : line_(line), place_(begin) {
    word_.begin = begin;
  }

  /// False for an unterminated quote.
  bool read() {
    while (place_ < line_.size() && !isBlank(line_[place_])) {
      if (line_[place_] != '"') {
        word_.text += line_[place_++];
      } else if (!readQuoted()) {
        return false;
      }
    }
    word_.end = place_;
    return true;
  }

  [[nodiscard]] std::size_t place() const { return place_; }
  Word take() { return std::move(word_); }

 private:
  bool readQuoted() {
    const std::size_t quote = place_++;
    while (place_ < line_.size()) {
      const char character = line_[place_++];
      if (character == '"') {
        return true;
      }
      if (character != '\\') {
        word_.text += character;
      } else if (place_ < line_.size()) {
        readEscape();
      }
    }
    place_ = quote;
    return false;
  }

  /// Reads an escape, from the character after the backslash.
  void readEscape() {
    const char character = line_[place_];
    switch (character) {
      case '"':
      case '\\':
        word_.text += character;
        break;
      case 'n':
        word_.text += '\n';
        break;
      case 't':
        word_.text += '\t';
        break;
      default:
        if (!word_.problem) {
          word_.problem = "unknown escape" + atColumn(line_, place_ - 1);
        }
        return;
    }
    ++place_;
  }

  std::string_view line_;
  std::size_t place_;
  Word word_;
};

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
    WordReader reader(line, place);
    if (!reader.read()) {
      result.problem = "unterminated quote" + atColumn(line, reader.place());
      return result;
    }
    place = reader.place();
    result.words.push_back(reader.take());
  }
}

}  // namespace orvane::desk::script
