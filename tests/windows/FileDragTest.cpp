// Dragging a file out of a view onto a window.
#include "tests/windows/WindowFixture.hpp"

namespace orvane::desk {
namespace {

class FileDragTest : public WindowFixture {
 protected:
  FileDragTest() : source(makeWindow({0, 0}, "source")), target(makeWindow({400, 0}, "target")) {
    source.setMovableByWindowBackground(true);
    source.setContentView(hosting(ui::Rectangle().dragSource([] {
      return std::optional(ui::DragRequest{"file:///A.app/", "icon"});
    })));
    source.orderFrontRegardless();
    // The right half accepts files.
    target.implementation()->dropTarget =
        DropTarget{[](ui::Point place) { return place.x > 100; },
                   [this](ui::Point, const std::string& url) { dropped.push_back(url); }};
    target.orderFrontRegardless();
    machine.runDue();
  }

  appkit::Window source;
  appkit::Window target;
  std::vector<std::string> dropped;
};

TEST_F(FileDragTest, AnAcceptedFileIsDropped) {
  press({100, 750});
  moveTo({110, 750});
  ASSERT_TRUE(server().pointer.fileDrag().has_value());
  EXPECT_EQ(server().pointer.fileDrag()->operations, 1U);
  moveTo({550, 750});
  EXPECT_TRUE(server().pointer.canDropHere());
  release();
  EXPECT_EQ(dropped, std::vector<std::string>{"file:///A.app/"});
  EXPECT_FALSE(server().pointer.fileDrag().has_value());
}

TEST_F(FileDragTest, AFileThatIsNotAcceptedIsNotDropped) {
  press({100, 750});
  moveTo({450, 750});
  EXPECT_FALSE(server().pointer.canDropHere());
  release();
  press({100, 750});
  moveTo({900, 300});
  release();
  EXPECT_TRUE(dropped.empty());
}

}  // namespace
}  // namespace orvane::desk
