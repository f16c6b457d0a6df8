// Tooltips appear when the pointer rests, and disappear.
#include "tests/windows/WindowFixture.hpp"

namespace orvane::desk {
namespace {

class TooltipsTest : public WindowFixture {
 protected:
  TooltipsTest() : window(makeWindow({0, 0})) {
    window.setContentView(hosting(ui::Rectangle().tooltip("What it does")));
    window.orderFrontRegardless();
  }
  [[nodiscard]] bool isShown() { return server().tooltips.shown().has_value(); }

  appkit::Window window;
};

TEST_F(TooltipsTest, ATooltipAppearsAfterASecondOfRest) {
  moveTo({50, 750});
  machine.advance(0.9);
  moveTo({60, 750});
  machine.advance(0.9);
  EXPECT_FALSE(isShown());
  machine.advance(0.1);
  ASSERT_TRUE(isShown());
  EXPECT_EQ(server().tooltips.shown()->text, "What it does");
  EXPECT_EQ(machine.runLoop.timerCount(), 0U);
}

TEST_F(TooltipsTest, ItDisappearsWhenThePointerLeavesTheViewOrClicks) {
  moveTo({50, 750});
  machine.advance(1);
  moveTo({70, 750});
  EXPECT_TRUE(isShown());
  moveTo({700, 400});
  EXPECT_FALSE(isShown());
  EXPECT_EQ(machine.runLoop.timerCount(), 0U);
  moveTo({50, 750});
  machine.advance(1);
  EXPECT_TRUE(isShown());
  click({50, 750});
  EXPECT_FALSE(isShown());
}

}  // namespace
}  // namespace orvane::desk
