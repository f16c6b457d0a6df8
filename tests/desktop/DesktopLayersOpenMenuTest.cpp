// The image of a file that is dragged from the permission guide.
#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"
#include "tests/desktop/DesktopFixture.hpp"

namespace orvane::showroom {
namespace {

class DesktopLayersOpenMenuTest : public DesktopFixture {
 protected:
  DesktopLayersOpenMenuTest() {
    // The windows fit side by side on the two displays.
    OrvanePermissionGuideWindowController::shared().show(nullptr);
    machine.mouse.moveTo({1200, 250});
    application.systemSettings().open(desk::SystemSettings::accessibilityPage);
    machine.runDue();
  }

  void beginDrag() {
    const CGPoint corner = server().topLeftOf(*window("guide"));
    moveTo({corner.x + 180, corner.y + 290});
    hand.pressButton();
    machine.mouse.moveBy(8, 8);
    machine.runDue();
    ASSERT_TRUE(server().pointer.fileDrag());
  }
  /// On the list of applications.
  CGPoint listPlace() {
    const CGPoint corner = server().topLeftOf(*window("system"));
    const ui::Rect list = application.systemSettings().listFrame().value_or(ui::Rect{});
    return {corner.x + list.x + 200, corner.y + list.y + 20};
  }
  /// Points on the mark: its white left arm, and the disc above it.
  static ui::Point armAt(CGPoint place) { return {place.x + 17, place.y + 22}; }
  static ui::Point discAt(CGPoint place) { return {place.x + 16, place.y + 18}; }
  static desk::Pixel at(const desk::SurfacePointer& shown, ui::Point place) {
    return desk::pixelAt(shown.get(), static_cast<int>(place.x), static_cast<int>(place.y));
  }
};

TEST_F(DesktopLayersOpenMenuTest, TheImageFollowsThePointer) {
  beginDrag();
  const CGPoint place{700, 450};
  moveTo(place);
  const ui::Rect image = server().pointer.fileDrag()->image.movedBy({place.x, place.y});
  const desk::SurfacePointer during = picture();
  release();
  EXPECT_GT(differences(picture(), during, image), image.width * image.height / 2);
}

TEST_F(DesktopLayersOpenMenuTest, ADropTargetHasTheCopyMark) {
  beginDrag();
  const CGPoint place = listPlace();
  moveTo(place);
  ASSERT_TRUE(server().pointer.canDropHere());
  const desk::SurfacePointer over = picture();
  const desk::Pixel disc = at(over, discAt(place));
  EXPECT_GT(disc.green, disc.red + 60);
  EXPECT_GT(disc.green, disc.blue + 60);
  const desk::Pixel arm = at(over, armAt(place));
  EXPECT_GT(arm.red, 180) << "the plus is white";
  EXPECT_LT(disc.red, 120) << "the disc around it is not";
}

TEST_F(DesktopLayersOpenMenuTest, OtherPlacesHaveNoCopyMark) {
  beginDrag();
  const CGPoint place{700, 450};
  moveTo(place);
  EXPECT_FALSE(server().pointer.canDropHere());
  const desk::Pixel disc = at(picture(), discAt(place));
  EXPECT_FALSE(disc.green > disc.red + 60 && disc.green > disc.blue + 60);
}

}  // namespace
}  // namespace orvane::showroom
