// Contract tests for windows.
#include <memory>
#include <tuple>

#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/views/View.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::Window;
using appkit::WindowKind;

class WindowContract : public ContractFixture {
 protected:
  /// Uses the real displays where displays cannot be arranged.
  void haveDisplays() { std::ignore = arrangeTwoDisplays(); }

  static Window borderless(WindowKind kind = WindowKind::window) {
    return {kind, CGRectMake(100, 100, 200, 100), appkit::StyleMask::borderless};
  }
};

TEST_F(WindowContract, ANewWindowIsNotVisibleAndHasTheContentSizeWithoutATitleBar) {
  const Window window = borderless();
  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(window.isMiniaturized());
  EXPECT_EQ(window.frame().size.width, 200);
  EXPECT_EQ(window.frame().size.height, 100);
  EXPECT_EQ(window.kind(), WindowKind::window);
  EXPECT_EQ(borderless(WindowKind::panel).kind(), WindowKind::panel);
}

TEST_F(WindowContract, ATitleBarComesOnTopOfTheContent) {
  const Window window(WindowKind::panel, CGRectMake(0, 0, 200, 100),
                      appkit::StyleMask::titled | appkit::StyleMask::closable);
  EXPECT_GT(window.frame().size.height, 100);
}

TEST_F(WindowContract, HandlesOfTheSameWindowAreEqual) {
  const Window window = borderless();
  const Window copy = window;
  EXPECT_TRUE(copy == window);
  EXPECT_FALSE(borderless() == window);
}

TEST_F(WindowContract, ItsChildrenMoveWithAWindow) {
  haveDisplays();
  Window parent = borderless();
  Window child = borderless();
  parent.orderFrontRegardless();
  parent.addChildWindowAbove(child);
  ASSERT_EQ(parent.childWindows().size(), 1U);
  EXPECT_TRUE(parent.childWindows().front() == child);
  parent.setFrameOrigin(CGPointMake(120, 90));
  EXPECT_EQ(child.frame().origin.x, 120);
  EXPECT_EQ(child.frame().origin.y, 90);
  parent.removeChildWindow(child);
  EXPECT_TRUE(parent.childWindows().empty());
  child.close();
  parent.close();
}

TEST_F(WindowContract, TheCloseCallbackComesOnceAndMayDropEveryHandle) {
  haveDisplays();
  auto window = std::make_unique<Window>(borderless());
  int calls = 0;
  window->onWillClose([&] {
    ++calls;
    window.reset();
  });
  window->orderFrontRegardless();
  EXPECT_TRUE(window->isVisible());
  Window(*window).close();
  EXPECT_EQ(calls, 1);
  letTimePass(0);
}

TEST_F(WindowContract, ClosingWorksWithoutADelegate) {
  Window window = borderless();
  int calls = 0;
  window.onWillClose([&] { ++calls; });
  window.clearDelegate();
  window.close();
  EXPECT_EQ(calls, 0);
}

TEST_F(WindowContract, ABorderlessWindowDoesNotBecomeKeyUnlessAllowed) {
  haveDisplays();
  Window window = borderless();
  window.makeKeyAndOrderFront();
  EXPECT_FALSE(window.isKeyWindow());
  window.close();
}

TEST_F(WindowContract, TheContentViewFillsTheWindowAndCanBeRemoved) {
  Window window = borderless();
  const appkit::HostingView view([](const ui::Environment&) { return ui::View(); });
  EXPECT_FALSE(window.contentView().has_value());
  window.setContentView(view);
  ASSERT_TRUE(window.contentView().has_value());
  EXPECT_EQ(window.contentView()->frame().size.width, 200);
  EXPECT_EQ(window.contentView()->frame().size.height, 100);
  window.clearContentView();
  EXPECT_FALSE(window.contentView().has_value());
}

}  // namespace
}  // namespace orvane
