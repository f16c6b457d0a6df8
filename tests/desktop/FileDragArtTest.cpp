// The picture of a file that is dragged out of the permission guide.
#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"
#include "showroom/desktop/FileDragArt.hpp"
#include "tests/desktop/DesktopFixture.hpp"

namespace orvane::desk {
namespace {

class FileDragArtTest : public DesktopFixture {
 protected:
  FileDragArtTest() {
    // Both windows fit beside each other on the two displays.
    OrvanePermissionGuideWindowController::shared().show(nullptr);
    machine.mouse.moveTo({1200, 250});
    application.systemSettings().open(SystemSettings::accessibilityPage);
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
  /// The middle of the mark's left arm, which is white, and above it the disc.
  static ui::Point armAt(CGPoint place) { return {place.x + 17, place.y + 22}; }
  static ui::Point discAt(CGPoint place) { return {place.x + 16, place.y + 18}; }
  static Pixel at(const SurfacePointer& shown, ui::Point place) {
    return pixelAt(shown.get(), static_cast<int>(place.x), static_cast<int>(place.y));
  }
};

TEST_F(FileDragArtTest, TheImageFollowsThePointer) {
  beginDrag();
  const CGPoint place{700, 450};
  moveTo(place);
  const ui::Rect image = server().pointer.fileDrag()->image.movedBy({place.x, place.y});
  const SurfacePointer during = picture();
  release();
  EXPECT_GT(differences(picture(), during, image), image.width * image.height / 2);
}

TEST_F(FileDragArtTest, TheMarkOfACopyIsThereWhereTheFileWouldBeTaken) {
  beginDrag();
  const CGPoint place = listPlace();
  moveTo(place);
  ASSERT_TRUE(server().pointer.canDropHere());
  const SurfacePointer over = picture();
  const Pixel disc = at(over, discAt(place));
  EXPECT_GT(disc.green, disc.red + 60);
  EXPECT_GT(disc.green, disc.blue + 60);
  const Pixel arm = at(over, armAt(place));
  EXPECT_GT(arm.red, 180) << "the plus is white";
  EXPECT_LT(disc.red, 120) << "the disc around it is not";
}

TEST_F(FileDragArtTest, ElsewhereThereIsNoMark) {
  beginDrag();
  const CGPoint place{700, 450};
  moveTo(place);
  EXPECT_FALSE(server().pointer.canDropHere());
  const Pixel disc = at(picture(), discAt(place));
  EXPECT_FALSE(disc.green > disc.red + 60 && disc.green > disc.blue + 60);
}

}  // namespace
}  // namespace orvane::desk
