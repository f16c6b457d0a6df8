// Splitting of lines into words, and of words at commas.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "desk/script/Arguments.hpp"
#include "desk/script/Lexer.hpp"

namespace orvane::desk::script {
namespace {

using Texts = std::vector<std::string>;

TEST(LexerTest, FindsTheWordsOfALine) {
  const std::vector<std::pair<std::string, Texts>> lines{
      {"  move\t100   900 ", {"move", "100", "900"}},
      {"", {}},
      {" \t ", {}},
      // A comment begins only at the beginning of a word.
      {"# reset", {}},
      {"   #reset", {}},
      {"expect guard.zones.# 1   # one zone", {"expect", "guard.zones.#", "1"}},
      {"echo \"# no comment\" a#b #c", {"echo", "# no comment", "a#b"}},
      {"press \"Pin Dock\" in menu", {"press", "Pin Dock", "in", "menu"}},
      {"name=\"Left one\" main", {"name=Left one", "main"}},
      {"echo \"\"", {"echo", ""}},
      // Escapes are replaced in quotes only.
      {R"("a\"b" "c\\d" "e\nf" "g\th")", {"a\"b", "c\\d", "e\nf", "g\th"}},
      {R"(a\nb)", {R"(a\nb)"}},
      {"echo \"显示器 é 🖥\"", {"echo", "显示器 é 🖥"}}};
  for (const auto& [line, expected] : lines) {
    const LexedLine lexed = lexLine(line);
    EXPECT_FALSE(lexed.problem) << line;
    Texts texts;
    for (const Word& word : lexed.words) {
      EXPECT_FALSE(word.problem) << line;
      texts.push_back(word.text);
    }
    EXPECT_EQ(texts, expected) << line;
  }
}

TEST(LexerTest, RecordsTheRangeOfEachWord) {
  const LexedLine lexed = lexLine(" expect  \"a b\"c # d");
  ASSERT_EQ(lexed.words.size(), 2U);
  EXPECT_EQ(lexed.words[0].begin, 1U);
  EXPECT_EQ(lexed.words[0].end, 7U);
  EXPECT_EQ(lexed.words[1].begin, 9U);
  EXPECT_EQ(lexed.words[1].end, 15U);
}

TEST(LexerTest, AnUnknownEscapeIsAProblemOfItsWord) {
  const LexedLine lexed = lexLine(R"(expect "\u4e2d\q" "fine")");
  ASSERT_FALSE(lexed.problem);
  ASSERT_EQ(lexed.words.size(), 3U);
  EXPECT_EQ(lexed.words[1].problem, "unknown escape at column 9");
  EXPECT_FALSE(lexed.words[2].problem);
}

TEST(LexerTest, UnterminatedQuotesAndControlCharactersAreProblems) {
  EXPECT_EQ(lexLine("é \"abc").problem, "unterminated quote at column 3");
  EXPECT_EQ(lexLine(R"("abc\")").problem, "unterminated quote at column 1");
  EXPECT_EQ(lexLine("\"abc\\").problem, "unterminated quote at column 1");
  EXPECT_EQ(lexLine(std::string("ab\0c", 4)).problem, "control character at column 3");
  EXPECT_EQ(lexLine("a\x1B[0m").problem, "control character at column 2");
  EXPECT_EQ(lexLine("a\x7F").problem, "control character at column 2");
}

TEST(LexerTest, CutsAtEveryComma) {
  EXPECT_EQ(split("", ','), Texts{});
  EXPECT_EQ(split(",a,", ','), (Texts{"", "a", ""}));
}

}  // namespace
}  // namespace orvane::desk::script
