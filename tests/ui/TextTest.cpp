// A line of text in too little room: it is tightened or truncated.
#include <gtest/gtest.h>

#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

class TextTest : public testing::Test {
 protected:
  double widthOfLine() { return test.element("abcdefghij")->frame.width; }
  double heightOfLine() { return test.element("abcdefghij")->frame.height; }

  TestHost test;
};

TEST_F(TextTest, IsTightenedAsFarAsNecessaryAndAllowed) {
  test.show(lineOfTenCharacters(50).allowsTightening());
  EXPECT_TRUE(test.draws("text \"abcdefghij\" 10/400 ")) << test.drawing();
  // A fifth of a point for each character, in steps of a 64th of a point.
  test.show(lineOfTenCharacters(48).allowsTightening());
  EXPECT_TRUE(test.draws("text \"abcdefghij\" 10/400/-0.203 ")) << test.drawing();
  EXPECT_LE(widthOfLine(), 48);
  test.show(lineOfTenCharacters(47).allowsTightening());
  EXPECT_TRUE(test.draws("text \"abcdefgh…\" 10/400 ")) << test.drawing();
  test.show(lineOfTenCharacters(47).allowsTightening(0.06));
  EXPECT_TRUE(test.draws("text \"abcdefghij\" 10/400/-0.313 ")) << test.drawing();
  test.show(lineOfTenCharacters(48));
  EXPECT_TRUE(test.draws("…")) << test.drawing();
}

TEST_F(TextTest, SeveralLinesAreNotTightened) {
  test.show(Text("aaaaaaaaaa bbbbbbbbbb")
                .font(Font::system(10))
                .lineLimit(2)
                .allowsTightening()
                .frame({.width = 48}));
  EXPECT_FALSE(test.draws("/-0")) << test.drawing();
}

TEST_F(TextTest, FollowsChangesOfItsEnvironment) {
  TruncationMode mode = TruncationMode::tail;
  double tightening = 0;
  double height = 0;
  test.show([&](const Environment&) {
    return lineOfTenCharacters(46)
        .truncationMode(mode)
        .allowsTightening(tightening)
        .lineHeight(height);
  });
  EXPECT_TRUE(test.draws("\"abcdefgh…\"")) << test.drawing();
  mode = TruncationMode::middle;
  test.update();
  EXPECT_TRUE(test.draws("\"abcd…ghij\"")) << test.drawing();
  tightening = 0.1;
  test.update();
  EXPECT_FALSE(test.draws("…")) << test.drawing();
  EXPECT_EQ(heightOfLine(), 10);
  height = 1;
  test.update();
  EXPECT_EQ(heightOfLine(), 1);
}

}  // namespace
}  // namespace orvane::ui
