// Contract tests for dragging sessions: a view is the source of a file, and offers a copy only.
#include <optional>

#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::Window;

class FileDragContract : public ContractFixture {
 protected:
  /// Shows a window of 200 by 100 points at (100, 100), movable by its background; its content is
  /// the drag source of `item`.
  static Window showSource(const std::optional<ui::DragRequest>& item) {
    Window window(appkit::WindowKind::panel, CGRectMake(100, 100, 200, 100),
                  appkit::StyleMask::nonactivatingPanel);
    window.setMovableByWindowBackground(true);
    window.setHidesOnDeactivate(false);
    window.setContentView(appkit::HostingView([item](const ui::Environment&) -> ui::View {
      return ui::Rectangle().dragSource([item] { return item; });
    }));
    window.orderFrontRegardless();
    return window;
  }
};

TEST_F(FileDragContract, ADraggedFileCanOnlyBeCopied) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  Window window = showSource(ui::DragRequest{"file:///Applications/A.app/", "AppIcon"});
  ORVANE_ARRANGE(dragPointer({150, 650}, {180, 650}));
  const std::optional<DraggedFile> file = draggedFile();
  ASSERT_TRUE(file);
  EXPECT_EQ(file->url, "file:///Applications/A.app/");
  EXPECT_EQ(file->operations, 1U);
  releasePointer();
  EXPECT_FALSE(draggedFile());
  window.close();
}

TEST_F(FileDragContract, PressingASourceDoesNotMoveItsWindow) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  for (const bool hasItem : {true, false}) {
    Window window =
        showSource(hasItem ? std::optional(ui::DragRequest{"file:///A.app/", ""}) : std::nullopt);
    ORVANE_ARRANGE(dragPointer({150, 650}, {180, 600}));
    EXPECT_EQ(draggedFile().has_value(), hasItem);
    releasePointer();
    EXPECT_EQ(window.frame().origin.x, 100);
    EXPECT_EQ(window.frame().origin.y, 100);
    window.close();
  }
}

}  // namespace
}  // namespace orvane
