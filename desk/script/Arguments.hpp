// Arguments reads the words after a command's name, each as the type that the command declares.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "desk/script/Lexer.hpp"
#include "desk/script/Problem.hpp"

namespace orvane::desk::script {

/// Reading goes on after a mistake, with a value that means nothing: only the first mistake is
/// kept, and a command asks `finish` once before it does anything. Positional words are read from
/// left to right; options ("key=value") and flags may stand anywhere among them. `what` names the
/// argument in a message.
class Arguments {
 public:
  /// Lengths and places that a script may use, in points: far beyond any desktop, and far from
  /// where doubles lose fractions.
  static constexpr double coordinateLimit = 1e9;

  /// `line` is the whole line that the words stand in.
  Arguments(std::span<const Word> words, std::string_view line)
      : words_(words), line_(line), isRead_(words.size(), false) {}

  /// Whether all words have been read.
  [[nodiscard]] bool isEmpty() const { return !next().has_value(); }

  std::string text(std::string_view what);
  /// Finite.
  double number(std::string_view what);
  /// Finite and at most coordinateLimit in magnitude.
  double coordinate(std::string_view what);
  std::uint32_t displayNumber(std::string_view what);
  /// From `lowest` to `highest`.
  std::int64_t integer(std::string_view what, std::int64_t lowest, std::int64_t highest);
  /// Seconds, not negative, as exact nanoseconds.
  std::int64_t nanoseconds(std::string_view what, std::int64_t highest);
  /// "X,Y,W,H".
  std::array<double, 4> rectangle(std::string_view what);
  /// The place of the word among the choices.
  std::size_t choice(std::string_view what, std::span<const std::string_view> choices);

  /// The value of "key=value"; none when there is no such word.
  std::optional<std::string> option(std::string_view key);
  /// The same as a number from `lowest` to `highest`.
  std::optional<std::int64_t> integerOption(std::string_view key, std::int64_t lowest,
                                            std::int64_t highest);
  /// The same as "X,Y,W,H"; it must be there.
  std::array<double, 4> rectangleOption(std::string_view key);
  /// Whether the bare word is there.
  bool flag(std::string_view word);
  /// Reads the next word when it is this one.
  bool keyword(std::string_view word);

  /// What remains of the line, as it is written there, without a comment at its end.
  std::string_view restAsWritten(std::string_view what);
  /// What remains, words separated by one blank; may be empty.
  std::string restAsText();

  /// For a mistake that only the command can see; kept when it is the first.
  void report(std::string problem);
  /// The first mistake; a word that nobody read is one.
  [[nodiscard]] Problem finish();
  /// Whether there was a mistake so far.
  [[nodiscard]] bool isWrong() const { return problem_.has_value(); }

 private:
  [[nodiscard]] std::optional<std::size_t> next() const;
  /// Null, and a problem reported, when there is none.
  const Word* take(std::string_view what);
  std::array<double, 4> parseRectangle(std::string_view what, std::string_view text);
  double checkedNumber(std::string_view what, std::string_view text);
  double checkedCoordinate(std::string_view what, std::string_view text);
  std::int64_t checkedInteger(std::string_view what, std::string_view text, std::int64_t lowest,
                              std::int64_t highest);

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

/// `text` cut at each comma; empty text gives no part.
[[nodiscard]] std::vector<std::string> splitAtCommas(std::string_view text);

}  // namespace orvane::desk::script
