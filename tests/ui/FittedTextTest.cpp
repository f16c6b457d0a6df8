// A line that shrinks before it is cut.
#include <gtest/gtest.h>

#include "Orvane/ui/FittedText.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

// Ten characters of the synthetic font are 50 points wide at size 10 and scale with the size.
View tenCharacters(double minimumScale, double width) {
  return FittedText("abcdefghij", minimumScale).font(Font::system(10)).frame({.width = width});
}

double widthOf(TestHost& test, const std::string& label) {
  const auto element = test.element(label);
  return element ? element->frame.width : -1;
}

TEST(FittedTextTest, KeepsItsSizeWhereItFits) {
  TestHost test;
  test.show(tenCharacters(0.5, 50));
  EXPECT_DOUBLE_EQ(widthOf(test, "abcdefghij"), 50);
}

TEST(FittedTextTest, ShrinksByQuartersOfAPointUntilItFits) {
  TestHost test;
  test.show(tenCharacters(0.5, 45));
  EXPECT_DOUBLE_EQ(widthOf(test, "abcdefghij"), 45);
  test.show(tenCharacters(0.5, 44.9));
  EXPECT_DOUBLE_EQ(widthOf(test, "abcdefghij"), 43.75);
}

TEST(FittedTextTest, IsCutOnlyAtItsSmallestSize) {
  TestHost test;
  test.show(tenCharacters(0.8, 40));
  EXPECT_EQ(test.drawing().find("\u2026"), std::string::npos) << test.drawing();
  test.show(tenCharacters(0.8, 39));
  EXPECT_NE(test.drawing().find("\u2026"), std::string::npos) << test.drawing();
  EXPECT_LE(widthOf(test, "abcdefghij"), 39);
  EXPECT_GT(widthOf(test, "abcdefghij"), 30);
}

TEST(FittedTextTest, FollowsATextThatBecomesAnother) {
  TestHost test;
  test.show(tenCharacters(0.5, 45));
  test.show(FittedText("abc", 0.5).font(Font::system(10)).frame({.width = 45}));
  EXPECT_DOUBLE_EQ(widthOf(test, "abc"), 15);
}

TEST(FittedTextTest, ANonsensicalScaleIsTakenForTheNearestSensibleOne) {
  TestHost test;
  test.show(tenCharacters(7, 40));
  EXPECT_NE(test.drawing().find("\u2026"), std::string::npos);
  test.show(tenCharacters(-1, 1));
  EXPECT_GE(widthOf(test, "abcdefghij"), 0);
}

}  // namespace
}  // namespace orvane::ui
