// The icon that the user can drag into the system's list.
#include "Orvane/permission/OrvaneDraggableAppIconView.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

class OrvaneDraggableAppIconViewTest : public PermissionFlow {
 protected:
  /// A point on the icon, in global coordinates.
  CGPoint iconPlace() {
    const CGPoint corner = server().topLeftOf(*window("guide"));
    for (const ui::SemanticsNode& child : children("guide")) {
      if (child.role == ui::Role::image) {
        return {corner.x + child.frame.x + 5, corner.y + child.frame.y + 5};
      }
    }
    ADD_FAILURE() << "there is no icon";
    return corner;
  }
};

TEST_F(OrvaneDraggableAppIconViewTest, PressingItAndMovingDoesNotMoveThePanel) {
  openGuide();
  const CGRect before = window("guide")->frame;
  const CGPoint place = iconPlace();
  pressAt(place);
  moveTo({place.x + 60, place.y + 60});
  release();
  EXPECT_TRUE(CGRectEqualToRect(window("guide")->frame, before));
}

TEST_F(OrvaneDraggableAppIconViewTest, TheDragCarriesTheBundleAndOffersOnlyToCopy) {
  openGuide();
  const CGPoint place = iconPlace();
  pressAt(place);
  moveTo({place.x + 10, place.y + 10});
  const auto& drag = server().pointer.fileDrag();
  ASSERT_TRUE(drag);
  EXPECT_EQ(drag->fileUrl, "file:///Applications/Orvane.app/");
  EXPECT_EQ(drag->operations, 1U);
  EXPECT_EQ(drag->imageName, "AppIcon");
  EXPECT_DOUBLE_EQ(drag->image.width, 82);
  EXPECT_DOUBLE_EQ(drag->image.height, 82);
  release();
  EXPECT_FALSE(server().pointer.fileDrag());
  EXPECT_FALSE(machine.permission.isTrusted()) << "it was dropped on nothing that takes it";
}

TEST_F(OrvaneDraggableAppIconViewTest, DroppedOnTheListItGrantsThePermission) {
  openGuide();
  const CGPoint place = iconPlace();
  pressAt(place);
  moveTo({place.x + 10, place.y + 10});
  const CGPoint corner = server().topLeftOf(*window("system"));
  const ui::Rect list = systemSettings.listFrame().value_or(ui::Rect{});
  moveTo({corner.x + list.x + 50, corner.y + list.y + 20});
  release();
  EXPECT_TRUE(machine.permission.isTrusted());
  machine.advance(1);
  EXPECT_EQ(granted, "a");
}

TEST_F(OrvaneDraggableAppIconViewTest, WithoutAnImageDraggingItStartsNothingAndMovesNothing) {
  server().resources().images.remove("AppIcon");
  openGuide();
  const CGRect before = window("guide")->frame;
  const CGPoint place = iconPlace();
  pressAt(place);
  moveTo({place.x + 60, place.y + 60});
  EXPECT_FALSE(server().pointer.fileDrag());
  release();
  EXPECT_TRUE(CGRectEqualToRect(window("guide")->frame, before));
}

}  // namespace
}  // namespace orvane
