// The lexer splits a line of a script into words.
#pragma once

#include <string_view>
#include <vector>

#include "desk/script/Complaint.hpp"
#include "desk/script/Word.hpp"

namespace orvane::desk::script {

struct LexedLine {
  /// Empty for an empty line and for one with nothing but a comment.
  std::vector<Word> words;
  /// When there is one, the words are not to be used.
  Complaint complaint;
};

/// `line` is one line without its line break. Words are separated by blanks and tabulators; what
/// stands in double quotes, anywhere in a word, may hold blanks and the escapes \" \\ \n \t. A "#"
/// at the beginning of a word begins a comment. The line must be UTF-8 and hold no other control
/// character; a null byte, an open quote and malformed UTF-8 are complained about with their
/// column, counted in characters from 1.
[[nodiscard]] LexedLine lexLine(std::string_view line);

}  // namespace orvane::desk::script
