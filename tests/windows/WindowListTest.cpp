// The z-order of windows.
#include "tests/windows/WindowFixture.hpp"

namespace orvane::desk {
namespace {

using WindowListTest = WindowFixture;

TEST_F(WindowListTest, TheLastOneShownIsInFront) {
  auto first = makeWindow({0, 0}, "first");
  auto second = makeWindow({0, 0}, "second");
  first.orderFrontRegardless();
  second.orderFrontRegardless();
  EXPECT_EQ(order(), "first second");
  first.orderFrontRegardless();
  EXPECT_EQ(order(), "second first");
}

TEST_F(WindowListTest, AHigherLevelStaysAboveALowerOne) {
  auto high = makeWindow({0, 0}, "high");
  auto low = makeWindow({0, 0}, "low");
  high.setLevel(appkit::WindowLevel::status);
  high.orderFrontRegardless();
  low.orderFrontRegardless();
  EXPECT_EQ(order(), "low high");
  high.setLevel(appkit::WindowLevel::normal);
  EXPECT_EQ(order(), "high low");
}

TEST_F(WindowListTest, AChildStaysAboveItsParentAndComesToTheFrontWithIt) {
  auto parent = makeWindow({0, 0}, "parent");
  auto child = makeWindow({0, 0}, "child");
  auto other = makeWindow({0, 0}, "other");
  parent.orderFrontRegardless();
  parent.addChildWindowAbove(child);
  EXPECT_TRUE(child.isVisible());
  other.orderFrontRegardless();
  EXPECT_EQ(order(), "parent child other");
  parent.orderFrontRegardless();
  EXPECT_EQ(order(), "other parent child");
}

TEST_F(WindowListTest, AChildOfALowerLevelIsAboveItsParentNevertheless) {
  auto parent = makeWindow({0, 0}, "parent");
  auto child = makeWindow({0, 0}, "child");
  parent.setLevel(appkit::WindowLevel::status);
  parent.orderFrontRegardless();
  parent.addChildWindowAbove(child);
  EXPECT_EQ(order(), "parent child");
}

TEST_F(WindowListTest, WindowsOfAnInactiveApplicationStayBehindOthersUnlessForced) {
  auto system = makeWindow({0, 0}, "system");
  system.implementation()->owner = WindowOwner::system;
  auto own = makeWindow({0, 0}, "own");
  system.orderFrontRegardless();
  own.makeKeyAndOrderFront();
  EXPECT_EQ(order(), "own system");
  own.orderFrontRegardless();
  EXPECT_EQ(order(), "system own");
}

}  // namespace
}  // namespace orvane::desk
