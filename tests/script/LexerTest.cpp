// Splitting of lines into words.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/script/Lexer.hpp"

namespace orvane::desk::script {
namespace {

std::vector<std::string> textsOf(std::string_view line) {
  const LexedLine lexed = lexLine(line);
  EXPECT_FALSE(lexed.problem) << *lexed.problem;
  std::vector<std::string> texts;
  for (const Word& word : lexed.words) {
    EXPECT_FALSE(word.problem) << *word.problem;
    texts.push_back(word.text);
  }
  return texts;
}

using Texts = std::vector<std::string>;

TEST(LexerTest, SeparatesWordsByBlanksAndTabulators) {
  EXPECT_EQ(textsOf("  move\t100   900 "), (Texts{"move", "100", "900"}));
}

TEST(LexerTest, FindsNoWordInEmptyLinesAndComments) {
  EXPECT_EQ(textsOf(""), Texts{});
  EXPECT_EQ(textsOf(" \t "), Texts{});
  EXPECT_EQ(textsOf("# reset"), Texts{});
  EXPECT_EQ(textsOf("   #reset"), Texts{});
}

TEST(LexerTest, BeginsACommentOnlyAtTheBeginningOfAWord) {
  EXPECT_EQ(textsOf("expect guard.zones.# 1   # one zone"),
            (Texts{"expect", "guard.zones.#", "1"}));
  EXPECT_EQ(textsOf("echo \"# no comment\" a#b #c"), (Texts{"echo", "# no comment", "a#b"}));
}

TEST(LexerTest, KeepsBlanksInQuotes) {
  EXPECT_EQ(textsOf("press \"Pin Dock\" in menu"), (Texts{"press", "Pin Dock", "in", "menu"}));
  EXPECT_EQ(textsOf("name=\"Left one\" main"), (Texts{"name=Left one", "main"}));
  EXPECT_EQ(textsOf("echo \"\""), (Texts{"echo", ""}));
}

TEST(LexerTest, ReplacesEscapesInQuotesOnly) {
  EXPECT_EQ(textsOf(R"("a\"b" "c\\d" "e\nf" "g\th")"), (Texts{"a\"b", "c\\d", "e\nf", "g\th"}));
  EXPECT_EQ(textsOf(R"(a\nb)"), (Texts{R"(a\nb)"}));
}

TEST(LexerTest, KeepsNonLatinText) {
  EXPECT_EQ(textsOf("echo \"显示器 é 🖥\""), (Texts{"echo", "显示器 é 🖥"}));
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

TEST(LexerTest, AnUnterminatedQuoteIsAProblem) {
  EXPECT_EQ(lexLine("é \"abc").problem, "unterminated quote at column 3");
  EXPECT_EQ(lexLine(R"("abc\")").problem, "unterminated quote at column 1");
  EXPECT_EQ(lexLine("\"abc\\").problem, "unterminated quote at column 1");
}

TEST(LexerTest, ControlCharactersAreAProblem) {
  EXPECT_EQ(lexLine(std::string("ab\0c", 4)).problem, "control character at column 3");
  EXPECT_EQ(lexLine("a\x1B[0m").problem, "control character at column 2");
  EXPECT_EQ(lexLine("a\x7F").problem, "control character at column 2");
}

}  // namespace
}  // namespace orvane::desk::script
