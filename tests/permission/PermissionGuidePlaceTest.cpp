// The guide's screen when the pointer is on none. The linker wraps Screen::mainScreen with a
// function of this file (see CMakeLists.txt), to distinguish the key window's screen from the main
// one, and for the last fallback, which needs a system without a main screen.
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

 private:
  std::optional<appkit::Window> window_;
};

// The Dock takes 70 points of the first screen, so its centre is 35 points higher.
constexpr double onFirstX = 1280;
constexpr double onFirstY = 313;
constexpr double onSecondX = 3200;
constexpr double onSecondY = 278;

TEST_F(PermissionGuidePlaceTest, WithThePointerOnNoScreenItIsOnTheKeyWindowsScreen) {
  haveMainScreen(0);
  haveKeyWindow({2500, 400});
  show();
  expectGuideOrigin(onSecondX, onSecondY);
}

TEST_F(PermissionGuidePlaceTest, TheScreenUnderThePointerPrecedesTheKeyWindowsScreen) {
  haveMainScreen(1);
  haveKeyWindow({2500, 400});
  moveTo({20, 200});
  show();
  expectGuideOrigin(onFirstX, onFirstY);
}

TEST_F(PermissionGuidePlaceTest, WithoutAKeyWindowItIsOnTheMainScreen) {
  haveMainScreen(1);
  ASSERT_FALSE(appkit::Application::keyWindow());
  show();
  expectGuideOrigin(onSecondX, onSecondY);
}

TEST_F(PermissionGuidePlaceTest, WithAKeyWindowOnNoScreenItIsOnTheMainScreen) {
  haveMainScreen(1);
  haveKeyWindow({-5000, -5000});
  show();
  expectGuideOrigin(onSecondX, onSecondY);
}

TEST_F(PermissionGuidePlaceTest, WithoutAnyScreenItIsCentred) {
  show();
  expectGuideOrigin(onFirstX, onFirstY);
  guide().close();
  standIn() = [] { return std::optional<Screen>(); };
  show();
  // A centred panel has two thirds of the free height below it.
  const CGRect visible = Screen::screens().at(0).visibleFrame();
  expectGuideOrigin(std::floor(CGRectGetMidX(visible) - 360.0 / 2),
                    std::floor(visible.origin.y + (visible.size.height - 500) * 2 / 3));
}

}  // namespace
}  // namespace orvane
