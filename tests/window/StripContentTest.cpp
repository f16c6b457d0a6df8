// What the strip says.
#include "desk/window/StripContent.hpp"
#include "desk/window/WindowCommands.hpp"
#include "tests/window/SessionFixture.hpp"

namespace orvane::desk {
namespace {

class StripContentTest : public SessionFixture {
 protected:
  [[nodiscard]] std::string figure(const std::string& label) const {
    for (const StripFigure& candidate : StripContent::of(session, false).figures) {
      if (candidate.label == label) {
        return candidate.value;
      }
    }
    ADD_FAILURE() << "no figure " << label;
    return {};
  }
};

TEST_F(StripContentTest, NamesEveryKeyInItsOrder) {
  const StripContent content = StripContent::of(session, false);
  ASSERT_EQ(content.keys.size(), windowCommands().size());
  for (std::size_t index = 0; index < content.keys.size(); ++index) {
    EXPECT_EQ(content.keys[index].key, std::string(1, windowCommands()[index].key));
  }
}

TEST_F(StripContentTest, FollowsTheDockTheBlocksAndTheEvents) {
  EXPECT_EQ(figure("Dock on"), "Built-in Display");
  pressRightDisplay(2);
  EXPECT_EQ(figure("Dock on"), "Right Display");
  EXPECT_EQ(figure("Events per second"), "3");
  moveTo(300, 300);
  runWindowCommand(session, 'p');
  EXPECT_EQ(figure("Orvane"), "Locked");
  pressRightDisplay(5);
  EXPECT_EQ(figure("Moved back"), "5");
}

TEST_F(StripContentTest, SaysHowOrvaneIs) {
  EXPECT_EQ(figure("Orvane"), "Unlocked");
  runWindowCommand(session, 'p');
  session.machine().modifierKeys.hold(kCGEventFlagMaskAlternate);
  session.movePointerBy(1, 0);
  EXPECT_EQ(figure("Orvane"), "Unlocked for now");
  runWindowCommand(session, 't');
  session.application().model().refreshDisplays();
  EXPECT_EQ(figure("Orvane"), "No permission");
  session.application().crash();
  EXPECT_EQ(figure("Orvane"), "Not running");
}

TEST_F(StripContentTest, SaysHowToGetTheMouseBackAndTheGuardsLastWord) {
  EXPECT_NE(StripContent::of(session, true).hint.find("Escape"), std::string::npos);
  EXPECT_EQ(StripContent::of(session, false).hint.find("Escape"), std::string::npos);
  EXPECT_EQ(StripContent::of(session, false).message, "");
  runWindowCommand(session, 'p');
  EXPECT_EQ(StripContent::of(session, false).message, "Mouse guard started. Trigger zones: 1");
}

}  // namespace
}  // namespace orvane::desk
