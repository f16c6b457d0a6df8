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
  /// Without quotes, escapes replaced.
  std::string text;
  /// Where it stands in the line, in bytes; `end` is the place after it.
  std::size_t begin = 0;
  std::size_t end = 0;
  /// An escape that the language does not know. A word that is read in another way, as JSON is, may
  /// have one.
  Problem problem;
};

struct LexedLine {
  /// Empty for an empty line and for one with nothing but a comment.
  std::vector<Word> words;
  /// When there is one, the words are not to be used.
  Problem problem;
};

/// `line` is one line without its line break. Words are separated by blanks and tabulators; what
/// stands in double quotes, anywhere in a word, may hold blanks and the escapes \" \\ \n \t. A "#"
/// at the beginning of a word begins a comment. The line must be UTF-8 and hold no other control
/// character; a null byte, an open quote and malformed UTF-8 are complained about with their
/// column, counted in characters from 1.
[[nodiscard]] LexedLine lexLine(std::string_view line);

}  // namespace orvane::desk::script
