// The pill that tells whether a mode is on.
#include "Orvane/panels/main/StatusPill.hpp"
#include "tests/panels/ComponentFixture.hpp"

namespace orvane {
namespace {

using StatusPillTest = ComponentFixture;

TEST_F(StatusPillTest, IsWrittenInTheAccentColourWhileActive) {
  show(StatusPill{"Pinned", true}, {200, 60});
  EXPECT_TRUE(draws("text \"Pinned\" 13/700 rgba(0 0.459 0.959 1)")) << drawing();
  EXPECT_TRUE(draws("rgba(0 0.478 1 0.14)")) << drawing();
  EXPECT_TRUE(draws("rgba(1 1 1 0.5) width 0.7\n")) << drawing();
  appear(true);
  EXPECT_TRUE(draws("text \"Pinned\" 13/700 rgba(0.37 0.684 1 1)")) << drawing();
  EXPECT_TRUE(draws("rgba(0.039 0.518 1 0.24)")) << drawing();
  EXPECT_TRUE(draws("rgba(1 1 1 0.22) width 0.7\n")) << drawing();
}

TEST_F(StatusPillTest, IsGreyWhileInactive) {
  show(StatusPill{"Off", false}, {200, 60});
  EXPECT_TRUE(draws("text \"Off\" 13/700 rgba(0 0 0 0.6)")) << drawing();
  EXPECT_TRUE(draws("rgba(0 0 0 0.05)")) << drawing();
  appear(true);
  EXPECT_TRUE(draws("text \"Off\" 13/700 rgba(1 1 1 0.7)")) << drawing();
  EXPECT_TRUE(draws("rgba(1 1 1 0.095)")) << drawing();
}

TEST_F(StatusPillTest, LeavesThirteenPointsBesideAndEightAboveItsText) {
  show(StatusPill{"1234", false}, {200, 60});
  const auto text = test.element("1234");
  ASSERT_TRUE(text);
  const ui::Rect pill{text->frame.x - 13, text->frame.y - 8, text->frame.width + 26,
                      text->frame.height + 16};
  EXPECT_TRUE(draws("fill capsule(" + numbers(pill) + ")")) << drawing();
}

}  // namespace
}  // namespace orvane
