// The lexer splits a line of a script into words.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "desk/script/Problem.hpp"

namespace orvane::desk::script {

/// One word of a line.
struct Word {
  /// Without quotes and with escapes replaced.
  std::string text;
  /// The byte range of the word in the line, without `end`.
  std::size_t begin = 0;
  std::size_t end = 0;
  /// An unknown escape. It is no error in a word that is parsed otherwise, as JSON is.
  Problem problem;
};

struct LexedLine {
  /// Empty for an empty line and a comment.
  std::vector<Word> words;
  /// If there is one, `words` is invalid.
  Problem problem;
};

/// `line` is a line without its line break. Words are separated by blanks and tabs. Text in double
/// quotes, anywhere in a word, may contain blanks and the escapes \" \\ \n \t. A "#" at the
/// beginning of a word begins a comment. Other control characters, an unterminated quote and
/// malformed UTF-8 are problems; their column counts characters from 1.
[[nodiscard]] LexedLine lexLine(std::string_view line);

}  // namespace orvane::desk::script
