// The guide's screen when the pointer is on none.
#include <optional>

#include "Orvane/platform/appkit/Application.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

class PermissionGuidePlaceTest : public PermissionFlow {
 protected:
  PermissionGuidePlaceTest() {
    // In window-system coordinates the uppermost position is on the screen's far edge and so
    // outside of it.
    moveTo({20, 0});
    EXPECT_EQ(appkit::Application::mouseLocation().y, 1080);
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
  void expectGuideOn(std::uint32_t number) {
    EXPECT_TRUE(
        CGRectContainsPoint(machine.displays.find(number)->frame, guide().snapshot().frame.origin));
  }

 private:
  std::optional<appkit::Window> window_;
};

TEST_F(PermissionGuidePlaceTest, TheScreenUnderThePointerPrecedesThatOfTheKeyWindow) {
  haveKeyWindow({2500, 400});
  show();
  expectGuideOn(2);
  moveTo({20, 200});
  show();
  expectGuideOn(1);
}

TEST_F(PermissionGuidePlaceTest, WithoutAKeyWindowOnAScreenItIsOnTheMainScreen) {
  EXPECT_EQ(machine.displays.setMain(2), std::nullopt);
  ASSERT_FALSE(appkit::Application::keyWindow());
  show();
  expectGuideOn(2);
  guide().close();
  EXPECT_EQ(machine.displays.setMain(1), std::nullopt);
  haveKeyWindow({-5000, -5000});
  show();
  expectGuideOn(1);
}

TEST_F(PermissionGuidePlaceTest, WithoutAnyScreenItIsCentred) {
  openGuide();
  detach(machine, 1);
  detach(machine, 2);
  const std::string calls = callsOf([this] { show(); });
  EXPECT_NE(calls.find("Window.center \"OrvaneGuidePanel\""), std::string::npos);
}

}  // namespace
}  // namespace orvane
