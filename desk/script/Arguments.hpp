// Arguments parses the words after a command's name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Orvane/platform/Quartz.hpp"
#include "desk/script/Lexer.hpp"
#include "desk/script/Problem.hpp"

namespace orvane::desk::script {

/// After an error, reading continues with meaningless values, and the first error is kept; a
/// command calls `finish` before it has any effect. Positional words are read from left to right;
/// options ("key=value") and flags may be anywhere among them. `what` names the argument in an
/// error.
class Arguments {
 public:
  /// The limit of lengths and coordinates, in points: far beyond any desktop, and small enough for
  /// doubles to keep fractions.
  static constexpr double coordinateLimit = 1e9;

  /// `line` is the line that contains the words.
  Arguments(std::span<const Word> words, std::string_view line)
      : words_(words), line_(line), isRead_(words.size(), false) {}

  /// Whether no word is left.
  [[nodiscard]] bool isEmpty() const { return !next().has_value(); }

  /// A text that was read from an option, to be parsed in place of the next word.
  using Given = std::optional<std::string>;

  std::string text(std::string_view what);
  /// Finite.
  double number(std::string_view what, const Given& given = {});
  /// Finite and at most coordinateLimit in magnitude.
  double coordinate(std::string_view what, const Given& given = {});
  std::uint32_t displayNumber(std::string_view what);
  /// From `lowest` to `highest`.
  std::int64_t integer(std::string_view what, std::int64_t lowest, std::int64_t highest,
                       const Given& given = {});
  /// Seconds, not negative, as exact nanoseconds.
  std::int64_t nanoseconds(std::string_view what, std::int64_t highest);
  /// "X,Y,W,H".
  CGRect rectangle(std::string_view what, const Given& given = {});
  /// The index of the word in `choices`.
  std::size_t choice(std::string_view what, std::span<const std::string_view> choices);

  /// The value of the word "key=value"; none without such a word.
  std::optional<std::string> option(std::string_view key);
  /// Whether there is such a word.
  bool flag(std::string_view word);
  /// Reads the next word if it is this one.
  bool keyword(std::string_view word);

  /// The rest of the line as written, without a comment.
  std::string_view restAsWritten(std::string_view what);
  /// The remaining words, separated by one blank each; may be empty.
  std::string restAsText();

  /// Reports an error that the command has found; kept if it is the first.
  void report(std::string problem);
  /// The first error. An unread word is an error.
  [[nodiscard]] Problem finish();
  /// Whether there was an error so far.
  [[nodiscard]] bool isWrong() const { return problem_.has_value(); }

 private:
  [[nodiscard]] std::optional<std::size_t> next() const;

  std::span<const Word> words_;
  std::string_view line_;
  std::vector<bool> isRead_;
  Problem problem_;
};

/// The names of a table's entries, separated by commas.
template <typename Table>
[[nodiscard]] std::string namesIn(const Table& table) {
  std::string list;
  for (const auto& [name, entry] : table) {
    list += (list.empty() ? "" : ", ") + name;
  }
  return list;
}

/// The parts of `text` between separators; none for an empty text.
[[nodiscard]] std::vector<std::string> split(std::string_view text, char separator);

}  // namespace orvane::desk::script
