// Placing, ordering, moving and closing windows, and the end of a process or a display.
#include "tests/windows/WindowFixture.hpp"

namespace orvane::desk {
namespace {

using appkit::Window;

using WindowServerTest = WindowFixture;

TEST_F(WindowServerTest, ChildrenAndTheirChildrenFollowTheirParent) {
  Window parent = makeWindow({100, 100});
  Window child = makeWindow({150, 120});
  Window grandchild = makeWindow({160, 130});
  parent.orderFrontRegardless();
  parent.addChildWindowAbove(child);
  child.addChildWindowAbove(grandchild);
  parent.setFrameOrigin({110, 80});
  EXPECT_EQ(child.frame().origin.x, 160);
  EXPECT_EQ(child.frame().origin.y, 100);
  EXPECT_EQ(grandchild.frame().origin.y, 110);
  parent.removeChildWindow(child);
  parent.setFrameOrigin({0, 0});
  EXPECT_EQ(child.frame().origin.x, 160);
  EXPECT_TRUE(parent.childWindows().empty());
}

TEST_F(WindowServerTest, AClosedChildIsRemovedFromItsParent) {
  Window parent = makeWindow({100, 100});
  Window child = makeWindow({150, 120});
  parent.orderFrontRegardless();
  parent.addChildWindowAbove(child);
  child.close();
  EXPECT_TRUE(parent.childWindows().empty());
  EXPECT_TRUE(parent.isVisible());
}

TEST_F(WindowServerTest, ClosingAParentTakesItsChildrenOffTheScreen) {
  Window parent = makeWindow({100, 100});
  Window child = makeWindow({150, 120});
  parent.orderFrontRegardless();
  parent.addChildWindowAbove(child);
  parent.close();
  EXPECT_FALSE(child.isVisible());
}

TEST_F(WindowServerTest, ClosingAgainFromWithinTheCallbackDoesNotCallItAgain) {
  Window window = makeWindow({0, 0});
  int calls = 0;
  window.onWillClose([&] {
    ++calls;
    window.close();
  });
  window.orderFrontRegardless();
  window.close();
  EXPECT_EQ(calls, 1);
}

TEST_F(WindowServerTest, AShownWindowOutlivesItsHandle) {
  {
    Window window = makeWindow({0, 0}, "kept");
    window.orderFrontRegardless();
  }
  EXPECT_EQ(order(), "kept");
}

TEST_F(WindowServerTest, TheScreenOfAWindowShowsMostOfIt) {
  Window window = makeWindow({950, 100});
  EXPECT_EQ(window.screen()->deviceNumber("NSScreenNumber"), 2);
  window.setFrameOrigin({850, 100});
  EXPECT_EQ(window.screen()->deviceNumber("NSScreenNumber"), 1);
  window.setFrameOrigin({5000, 100});
  EXPECT_FALSE(window.screen().has_value());
}

TEST_F(WindowServerTest, ACentredWindowHasLessSpaceAboveThanBelow) {
  Window window = makeWindow({1100, 100});
  window.center();
  EXPECT_EQ(CGRectGetMidX(window.frame()), 1500);
  const CGRect visible = window.screen()->visibleFrame();
  const double below = window.frame().origin.y - visible.origin.y;
  const double above = CGRectGetMaxY(visible) - CGRectGetMaxY(window.frame());
  EXPECT_GT(below, above);
  EXPECT_GT(above, 0);
}

TEST_F(WindowServerTest, AWindowOfADetachedDisplayMovesToAnother) {
  Window window = makeWindow({1500, 100});
  window.orderFrontRegardless();
  EXPECT_FALSE(machine.displays.detach(2));
  EXPECT_TRUE(window.screen().has_value());
}

TEST_F(WindowServerTest, TheEndOfTheProcessClosesItsWindowsWithoutCallbacks) {
  int calls = 0;
  Window window = makeWindow({0, 0}, "own");
  window.onWillClose([&] { ++calls; });
  window.orderFrontRegardless();
  Window system = makeWindow({300, 0}, "system");
  system.implementation()->owner = WindowOwner::system;
  system.orderFrontRegardless();
  machine.process.end();
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(order(), "system");
}

TEST_F(WindowServerTest, TerminatingNotifiesTheDelegateOnceAndThenEndsTheProcess) {
  int calls = 0;
  appkit::Application::setDelegate({.didFinishLaunching = {},
                                    .shouldHandleReopen = {},
                                    .performKeyEquivalent = {},
                                    .willTerminate = [&] { ++calls; }});
  appkit::Application::terminate();
  appkit::Application::terminate();
  EXPECT_TRUE(machine.process.isRunning());
  machine.runDue();
  EXPECT_EQ(calls, 1);
  EXPECT_FALSE(machine.process.isRunning());
}

using WindowListTest = WindowFixture;

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
