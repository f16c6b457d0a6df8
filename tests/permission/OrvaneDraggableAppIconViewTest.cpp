// The icon that the user can drag into the list of the system's settings.
#include "Orvane/permission/OrvaneDraggableAppIconView.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

class OrvaneDraggableAppIconViewTest : public PermissionFlow {
 protected:
  /// Opens the guide, presses the icon and moves the pointer.
  void dragIcon(double distance) {
    openGuide();
    const auto guideFrame = desk::Surfaces(server()).frame("guide");
    ASSERT_TRUE(guideFrame);
    constexpr double iconBelowTop = 270;
    const CGPoint start{CGRectGetMidX(*guideFrame), guideFrame->origin.y + iconBelowTop};
    pressAt(start);
    moveTo({start.x + distance, start.y + distance});
  }
};

TEST_F(OrvaneDraggableAppIconViewTest, TheDragCarriesTheBundleAndAllowsOnlyACopy) {
  dragIcon(10);
  const auto& drag = server().pointer.fileDrag();
  ASSERT_TRUE(drag);
  EXPECT_EQ(drag->fileUrl, "file:///Applications/Orvane.app/");
  EXPECT_EQ(drag->operations, 1U);
  EXPECT_EQ(drag->imageName, "AppIcon");
  EXPECT_DOUBLE_EQ(drag->image.width, 82);
  EXPECT_DOUBLE_EQ(drag->image.height, 82);
  release();
  EXPECT_FALSE(server().pointer.fileDrag());
  EXPECT_FALSE(machine.permission.isTrusted()) << "it was not dropped on the list";
}

TEST_F(OrvaneDraggableAppIconViewTest, DraggingDoesNotMoveThePanelEvenWithoutAnImageToDrag) {
  for (const bool hasImage : {true, false}) {
    if (!hasImage) {
      server().resources().images.remove("AppIcon");
    }
    dragIcon(60);
    EXPECT_EQ(server().pointer.fileDrag().has_value(), hasImage);
    release();
    expectGuideOrigin(1280, 313);
    guide().close();
    moveTo({20, 200});
    machine.advance(1);
  }
}

}  // namespace
}  // namespace orvane
