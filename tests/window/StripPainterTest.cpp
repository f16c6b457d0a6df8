// The strip's picture, where it could go wrong.
#include "desk/window/StripPainter.hpp"
#include "tests/canvas/PixelFixture.hpp"
#include "tests/window/SessionFixture.hpp"

namespace orvane::desk {
namespace {

class StripPainterTest : public PixelFixture {
 protected:
  void paint(const StripContent& content, int width) {
    begin(width, static_cast<int>(stripHeight));
    paintStrip(*canvas, resources, {0, 0, static_cast<double>(width), stripHeight}, content);
  }
  /// Pixels of the column range that are not the ground.
  int inkBetween(int left, int right) {
    const Pixel ground = at(4, height() / 2);
    int count = 0;
    for (int y = 4; y < height() - 2; ++y) {
      for (int x = left; x < right; ++x) {
        count += at(x, y) == ground ? 0 : 1;
      }
    }
    return count;
  }

  DeskSession session{2};
};

TEST_F(StripPainterTest, FillsItsRectangleAndLeavesTheMarginsFree) {
  paint(StripContent::of(session, false), 1400);
  for (int x = 0; x < width(); x += 7) {
    ASSERT_EQ(at(x, height() - 1).alpha, 255);
  }
  EXPECT_EQ(inkBetween(0, 16), 0);
  EXPECT_EQ(inkBetween(1385, 1400), 0);
  EXPECT_GT(inkBetween(20, 300), 500);
}

TEST_F(StripPainterTest, CutsLongTextsInsteadOfLettingThemRunIntoEachOther) {
  StripContent content = StripContent::of(session, false);
  content.keys = {{"P", std::string(80, 'W'), std::string(90, 'm'), false}};
  content.figures.clear();
  content.hint.clear();
  content.message.clear();
  paint(content, 1000);
  // The first of five columns ends at 20 + (1000 - 2 * 20 - 24 - 264) / 5.
  EXPECT_GT(inkBetween(60, 140), 100);
  EXPECT_EQ(inkBetween(155, 600), 0);
}

TEST_F(StripPainterTest, ShowsWhatIsSwitchedOnInTheColourOfSwitches) {
  StripContent content = StripContent::of(session, false);
  content.keys = {{"P", "Pin", "On", true}};
  paint(content, 1000);
  const Pixel on = at(24, 22);
  EXPECT_GT(on.blue, on.red + 100);
  content.keys[0].isOn = false;
  paint(content, 1000);
  const Pixel off = at(24, 22);
  EXPECT_NEAR(off.blue, off.red, 3);
}

TEST_F(StripPainterTest, FollowsTheAppearance) {
  StripContent content = StripContent::of(session, false);
  paint(content, 1000);
  EXPECT_GT(at(500, 120).green, 230);
  content.isDark = true;
  paint(content, 1000);
  EXPECT_LT(at(500, 120).green, 60);
}

}  // namespace
}  // namespace orvane::desk
