// A line of text in too little room: it is tightened or truncated.
#include <gtest/gtest.h>

#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

const std::string whole = "abcdefghij";

// Ten characters of the synthetic font are 50 points wide at size 10.
View line(double width) {
  return Text(whole).font(Font::system(10)).lineLimit(1).frame({.width = width});
}

class TextTest : public testing::Test {
 protected:
  bool draws(const std::string& part) const {
    return test.drawing().find(part) != std::string::npos;
  }

  TestHost test;
};

TEST_F(TextTest, IsTightenedAsFarAsNecessaryAndAllowed) {
  test.show(line(50).allowsTightening());
  EXPECT_TRUE(draws("text \"abcdefghij\" 10/400 ")) << test.drawing();
  // A fifth of a point for each character, in steps of a 64th of a point.
  test.show(line(48).allowsTightening());
  EXPECT_TRUE(draws("text \"abcdefghij\" 10/400/-0.203 ")) << test.drawing();
  EXPECT_LE(test.element(whole)->frame.width, 48);
  test.show(line(47).allowsTightening());
  EXPECT_TRUE(draws("text \"abcdefgh…\" 10/400 ")) << test.drawing();
  test.show(line(47).allowsTightening(0.06));
  EXPECT_TRUE(draws("text \"abcdefghij\" 10/400/-0.313 ")) << test.drawing();
  test.show(line(48));
  EXPECT_TRUE(draws("…")) << test.drawing();
}

TEST_F(TextTest, SeveralLinesAreNotTightened) {
  test.show(Text("aaaaaaaaaa bbbbbbbbbb")
                .font(Font::system(10))
                .lineLimit(2)
                .allowsTightening()
                .frame({.width = 48}));
  EXPECT_FALSE(draws("/-0")) << test.drawing();
}

TEST_F(TextTest, FollowsChangesOfItsEnvironment) {
  TruncationMode mode = TruncationMode::tail;
  double tightening = 0;
  double height = 0;
  test.show([&](const Environment&) {
    return line(46).truncationMode(mode).allowsTightening(tightening).lineHeight(height);
  });
  EXPECT_TRUE(draws("\"abcdefgh…\"")) << test.drawing();
  mode = TruncationMode::middle;
  test.update();
  EXPECT_TRUE(draws("\"abcd…ghij\"")) << test.drawing();
  tightening = 0.1;
  test.update();
  EXPECT_FALSE(draws("…")) << test.drawing();
  EXPECT_EQ(test.element(whole)->frame.height, 10);
  height = 1;
  test.update();
  EXPECT_EQ(test.element(whole)->frame.height, 1);
}

}  // namespace
}  // namespace orvane::ui
