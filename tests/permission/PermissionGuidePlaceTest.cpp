// The guide's screen when the pointer is on none. The linker wraps Screen::mainScreen with a
// function of this file (see CMakeLists.txt), because these tests must distinguish the key window's
// screen from the main one, and the last fallback needs a system without a main screen.
#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>

#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/Screen.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

using appkit::Screen;
using MainScreen = std::function<std::optional<Screen>()>;

MainScreen& standIn() {
  static MainScreen function;
  return function;
}

}  // namespace

std::optional<Screen> realMainScreen() asm("__real__ZN6orvane6appkit6Screen10mainScreenEv");
std::optional<Screen> wrappedMainScreen() asm("__wrap__ZN6orvane6appkit6Screen10mainScreenEv");
std::optional<Screen> wrappedMainScreen() {
  return standIn() ? standIn()() : realMainScreen();
}

namespace {

class PermissionGuidePlaceTest : public PermissionFlow {
 protected:
  PermissionGuidePlaceTest() {
    // In window-system coordinates the uppermost position is on the screen's far edge and so
    // outside of it.
    moveTo({20, 0});
    const CGPoint pointer = appkit::Application::mouseLocation();
    EXPECT_TRUE(std::ranges::none_of(Screen::screens(), [&](const Screen& screen) {
      return CGRectContainsPoint(screen.frame(), pointer);
    }));
  }
  ~PermissionGuidePlaceTest() override { standIn() = nullptr; }

  static void haveMainScreen(std::size_t index) {
    standIn() = [index] { return std::optional(Screen::screens().at(index)); };
  }
  /// A window of the application with its lower left corner there, which becomes key.
  void haveKeyWindow(CGPoint corner) {
    window_.emplace(appkit::WindowKind::window, CGRectMake(corner.x, corner.y, 300, 200),
                    appkit::StyleMask::titled);
    window_->setReleasedWhenClosed(false);
    appkit::Application::activateIgnoringOtherApps();
    window_->makeKeyAndOrderFront();
    machine.runDue();
    ASSERT_TRUE(appkit::Application::keyWindow());
  }
  void show() {
    guide().show(nullptr);
    machine.runDue();
  }
  void expectOrigin(double x, double y) {
    EXPECT_EQ(guide().snapshot().frame.origin.x, x);
    EXPECT_EQ(guide().snapshot().frame.origin.y, y);
  }

 private:
  std::optional<appkit::Window> window_;
};

// The Dock takes 70 points of the first screen; on the second one the middle is 35 points lower.
constexpr double onFirstX = 1280;
constexpr double onFirstY = 313;
constexpr double onSecondX = 3200;
constexpr double onSecondY = 278;

TEST_F(PermissionGuidePlaceTest, WithThePointerOnNoScreenItStandsOnTheKeyWindowsScreen) {
  haveMainScreen(0);
  haveKeyWindow({2500, 400});
  show();
  expectOrigin(onSecondX, onSecondY);
}

TEST_F(PermissionGuidePlaceTest, TheScreenUnderThePointerComesBeforeTheKeyWindowsScreen) {
  haveMainScreen(1);
  haveKeyWindow({2500, 400});
  moveTo({20, 200});
  show();
  expectOrigin(onFirstX, onFirstY);
}

TEST_F(PermissionGuidePlaceTest, WithoutAKeyWindowItStandsOnTheMainScreen) {
  haveMainScreen(1);
  ASSERT_FALSE(appkit::Application::keyWindow());
  show();
  expectOrigin(onSecondX, onSecondY);
}

TEST_F(PermissionGuidePlaceTest, AKeyWindowThatIsOnNoScreenLeavesItToTheMainScreen) {
  haveMainScreen(1);
  haveKeyWindow({-5000, -5000});
  show();
  expectOrigin(onSecondX, onSecondY);
}

TEST_F(PermissionGuidePlaceTest, TheMainScreenNeedNotBeTheFirstOne) {
  EXPECT_FALSE(machine.displays.setMain(2));
  show();
  // The Dock has moved along.
  expectOrigin(onSecondX, onFirstY);
}

TEST_F(PermissionGuidePlaceTest, WithoutAnyOfThemThePanelIsCentredWhereItIs) {
  show();
  expectOrigin(onFirstX, onFirstY);
  guide().close();
  standIn() = [] { return std::optional<Screen>(); };
  show();
  // A centred panel has two thirds of the free height below it.
  const CGRect visible = Screen::screens().at(0).visibleFrame();
  expectOrigin(std::floor(CGRectGetMidX(visible) - 360.0 / 2),
               std::floor(visible.origin.y + (visible.size.height - 500) * 2 / 3));
}

}  // namespace
}  // namespace orvane
