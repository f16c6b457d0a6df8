// Parsing of a command's arguments, and its problems.
#include <string>

#include <gtest/gtest.h>

#include "desk/script/Arguments.hpp"
#include "desk/script/Lexer.hpp"

namespace orvane::desk::script {
namespace {

/// Owns the words to which the arguments refer.
class Line {
 public:
  explicit Line(std::string text) : text_(std::move(text)), lexed_(lexLine(text_)) {}
  Arguments arguments() const { return {lexed_.words, text_}; }

 private:
  std::string text_;
  LexedLine lexed_;
};

TEST(ArgumentsTest, ReadsOptionsAndFlagsWhereverTheyStand) {
  const Line line("main name=\"a=b\" 3 frame=0,-1.5,1920,1080");
  Arguments arguments = line.arguments();
  EXPECT_EQ(arguments.option("name"), "a=b");
  EXPECT_FALSE(arguments.option("nam"));
  const CGRect frame = arguments.rectangle("frame", arguments.option("frame"));
  EXPECT_TRUE(CGRectEqualToRect(frame, CGRectMake(0, -1.5, 1920, 1080)));
  EXPECT_TRUE(arguments.flag("main"));
  EXPECT_FALSE(arguments.flag("main"));
  EXPECT_EQ(arguments.integer("N", 0, 9), 3);
  EXPECT_FALSE(arguments.finish());
}

TEST(ArgumentsTest, KeepsTheFirstProblem) {
  const Line line("x y");
  Arguments arguments = line.arguments();
  EXPECT_EQ(arguments.number("X"), 0);
  EXPECT_EQ(arguments.number("Y"), 0);
  arguments.report("something later");
  EXPECT_TRUE(arguments.isWrong());
  EXPECT_EQ(arguments.finish(), "X must be a decimal number, not \"x\"");
}

TEST(ArgumentsTest, ASecondEqualOptionIsAProblem) {
  const Line line("uuid=A uuid=B");
  Arguments arguments = line.arguments();
  EXPECT_EQ(arguments.option("uuid"), "A");
  EXPECT_EQ(arguments.finish(), "unexpected \"uuid=B\"");
}

TEST(ArgumentsTest, NumbersOutOfRangeAreProblems) {
  const auto problem = [](const std::string& word, auto read) {
    const Line line(word);
    Arguments arguments = line.arguments();
    read(arguments);
    return arguments.finish().value_or("");
  };
  const auto integer = [](Arguments& arguments) { arguments.integer("N", 0, 9); };
  EXPECT_EQ(problem("10", integer), "N must be a whole number from 0 to 9, not \"10\"");
  EXPECT_EQ(problem("-1", integer), "N must be a whole number from 0 to 9, not \"-1\"");
  EXPECT_EQ(problem("99999999999999999999", integer),
            "N must be a whole number from 0 to 9, not \"99999999999999999999\"");
  const auto display = [](Arguments& arguments) { arguments.displayNumber("N"); };
  EXPECT_EQ(problem("4294967295", display), "");
  EXPECT_NE(problem("4294967296", display), "");
  const auto coordinate = [](Arguments& arguments) { arguments.coordinate("X"); };
  EXPECT_EQ(problem("1000000000", coordinate), "");
  EXPECT_EQ(problem("1000000000.5", coordinate), "X is too large: \"1000000000.5\"");
  const auto seconds = [](Arguments& arguments) { arguments.nanoseconds("S", 2'500'000'000); };
  EXPECT_EQ(problem("2.5", seconds), "");
  EXPECT_EQ(problem("2.500000001", seconds),
            "S must be from 0 to 2.5 seconds, not \"2.500000001\"");
  EXPECT_EQ(problem("-0.1", seconds), "S must be from 0 to 2.5 seconds, not \"-0.1\"");
  EXPECT_EQ(problem("soon", seconds), "S must be a decimal number of seconds, not \"soon\"");
}

TEST(ArgumentsTest, CutsALongWordInAMessage) {
  const Line line("a" + std::string(40, 'b') + "显示器显示器显示器显示器");
  Arguments arguments = line.arguments();
  EXPECT_EQ(arguments.number("X"), 0);
  EXPECT_EQ(arguments.finish(),
            "X must be a decimal number, not \"a" + std::string(40, 'b') + "显示器显示器...\"");
}

TEST(ArgumentsTest, CutsAtEveryComma) {
  EXPECT_EQ(split("", ','), std::vector<std::string>{});
  EXPECT_EQ(split("a", ','), std::vector<std::string>{"a"});
  EXPECT_EQ(split(",a,", ','), (std::vector<std::string>{"", "a", ""}));
}

}  // namespace
}  // namespace orvane::desk::script
