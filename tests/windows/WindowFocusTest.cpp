// The key window and activation.
#include "tests/windows/WindowFixture.hpp"

namespace orvane::desk {
namespace {

using appkit::Application;
using appkit::Window;
using appkit::WindowKind;

class WindowFocusTest : public WindowFixture {
 protected:
  WindowFocusTest() { Application::activateIgnoringOtherApps(); }

  static Window plain(WindowKind kind, std::uint64_t styleMask) {
    return {kind, CGRectMake(10, 10, 200, 100), styleMask};
  }
};

TEST_F(WindowFocusTest, AWindowWithATitleBarBecomesKeyAndMainAPanelOnlyKey) {
  Window window = plain(WindowKind::window, appkit::StyleMask::titled);
  window.makeKeyAndOrderFront();
  EXPECT_EQ(server().focus.mainWindow(), window.implementation());
  Window panel = plain(WindowKind::panel, appkit::StyleMask::titled);
  panel.makeKeyAndOrderFront();
  EXPECT_TRUE(panel.isKeyWindow());
  EXPECT_EQ(server().focus.mainWindow(), window.implementation());
}

TEST_F(WindowFocusTest, AWindowThatIsNotOnTheScreenDoesNotBecomeKey) {
  Window window = plain(WindowKind::window, appkit::StyleMask::titled);
  window.makeKeyWindow();
  EXPECT_FALSE(Application::keyWindow().has_value());
}

TEST_F(WindowFocusTest, WhenTheKeyWindowClosesTheNextOneBecomesKey) {
  Window first = makeWindow({0, 0}, "first");
  Window second = makeWindow({0, 0}, "second");
  first.makeKeyAndOrderFront();
  second.makeKeyAndOrderFront();
  second.close();
  EXPECT_TRUE(first.isKeyWindow());
  first.close();
  EXPECT_FALSE(Application::keyWindow().has_value());
}

TEST_F(WindowFocusTest, AClickMakesAWindowKeyAndBringsItToTheFront) {
  Window first = makeWindow({0, 0}, "first");
  Window second = makeWindow({300, 0}, "second");
  first.makeKeyAndOrderFront();
  second.makeKeyAndOrderFront();
  click({50, 750});
  EXPECT_TRUE(first.isKeyWindow());
  EXPECT_EQ(order(), "second first");
}

TEST_F(WindowFocusTest, AClickOnTheDesktopDeactivatesTheApplication) {
  Window window = makeWindow({0, 0});
  window.makeKeyAndOrderFront();
  click({900, 400});
  EXPECT_FALSE(window.isKeyWindow());
  EXPECT_TRUE(window.isVisible());
  Application::activateIgnoringOtherApps();
  EXPECT_TRUE(window.isKeyWindow());
}

TEST_F(WindowFocusTest, APanelHidesWhileTheApplicationIsInactiveUnlessConfigured) {
  Window hiding = plain(WindowKind::panel, appkit::StyleMask::titled);
  Window staying = plain(WindowKind::panel, appkit::StyleMask::titled);
  staying.setHidesOnDeactivate(false);
  hiding.orderFrontRegardless();
  staying.orderFrontRegardless();
  click({900, 400});
  EXPECT_FALSE(hiding.isVisible());
  EXPECT_TRUE(staying.isVisible());
  Application::activateIgnoringOtherApps();
  EXPECT_TRUE(hiding.isVisible());
}

TEST_F(WindowFocusTest, ANonactivatingPanelIsClickedWithoutActivatingItsApplication) {
  click({900, 400});
  Window panel =
      makeWindow({0, 0}, "panel", WindowKind::panel, appkit::StyleMask::nonactivatingPanel);
  panel.setHidesOnDeactivate(false);
  panel.orderFrontRegardless();
  click({50, 750});
  EXPECT_FALSE(server().focus.isActive());
  EXPECT_TRUE(panel.isKeyWindow());
}

TEST_F(WindowFocusTest, AWindowWithoutThatStyleIsNotMiniaturised) {
  Window window = makeWindow({0, 0});
  window.makeKeyAndOrderFront();
  window.miniaturize();
  EXPECT_FALSE(window.isMiniaturized());
}

TEST_F(WindowFocusTest, TheMainScreenIsTheOneWithTheKeyWindow) {
  EXPECT_EQ(appkit::Screen::mainScreen()->deviceNumber("NSScreenNumber"), 1);
  Window window = makeWindow({1500, 100});
  window.makeKeyAndOrderFront();
  EXPECT_EQ(appkit::Screen::mainScreen()->deviceNumber("NSScreenNumber"), 2);
}

TEST_F(WindowFocusTest, CommandKeysCloseAndMiniaturiseOnlyWhereTheStyleAllows) {
  Window bare = makeWindow({0, 0});
  bare.makeKeyAndOrderFront();
  EXPECT_FALSE(command("w"));
  EXPECT_FALSE(command("m"));
  EXPECT_TRUE(bare.isVisible());
  Window full = makeWindow({0, 0}, "full", WindowKind::window,
                           appkit::StyleMask::closable | appkit::StyleMask::miniaturizable);
  full.makeKeyAndOrderFront();
  EXPECT_TRUE(command("m"));
  EXPECT_TRUE(full.isMiniaturized());
  full.deminiaturize();
  EXPECT_TRUE(command("w"));
  EXPECT_FALSE(full.isVisible());
}

}  // namespace
}  // namespace orvane::desk
