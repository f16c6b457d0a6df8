// In both languages and in every state all texts of the panels are there in full: none is cut, none
// leaves its panel, none lies on another.
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

struct State {
  std::string name;
  std::string surface;
  OrvaneLanguage::Value language;
  std::function<void(OrvaneModel&)> reach;
};

std::ostream& operator<<(std::ostream& stream, const State& state) {
  return stream << state.name;
}

class TextFitTest : public PanelFixture, public testing::WithParamInterface<State> {
 protected:
  /// What is read or pressed, without what lies in it. What is in the picker may be scrolled away.
  static void collectPieces(const ui::SemanticsNode& node, std::vector<ui::SemanticsNode>& pieces) {
    if (node.role == ui::Role::scrollArea) {
      return;
    }
    if (node.children.empty()) {
      pieces.push_back(node);
    }
    for (const ui::SemanticsNode& child : node.children) {
      collectPieces(child, pieces);
    }
  }
};

TEST_P(TextFitTest, NothingIsCutAndNothingLeavesThePanel) {
  const State& state = GetParam();
  openSettings();
  model().setAppLanguage(state.language);
  state.reach(model());
  machine.advance(2);

  for (const std::string& line : drawing(state.surface)) {
    EXPECT_EQ(line.find("…"), std::string::npos) << line;
  }
  // Where the window's corners are round there is nothing to read, so the edges do as bounds.
  constexpr double margin = 8;
  const ui::Rect bounds = tree(state.surface).frame.inset(margin);
  std::vector<ui::SemanticsNode> pieces;
  collectPieces(tree(state.surface), pieces);
  EXPECT_GT(pieces.size(), 10U);
  for (std::size_t first = 0; first < pieces.size(); ++first) {
    const ui::Rect& frame = pieces[first].frame;
    EXPECT_TRUE(frame.x >= bounds.x && frame.y >= bounds.y && frame.right() <= bounds.right() &&
                frame.bottom() <= bounds.bottom())
        << pieces[first].label << " at " << frame.x << " " << frame.y << " " << frame.width << " "
        << frame.height;
    for (std::size_t second = first + 1; second < pieces.size(); ++second) {
      EXPECT_TRUE(frame.intersection(pieces[second].frame).isEmpty())
          << pieces[first].label << " lies on " << pieces[second].label;
    }
  }
}

void stay(OrvaneModel& /*model*/) {}
void pin(OrvaneModel& model) {
  model.toggleSelectedDisplayLock();
}
void prevent(OrvaneModel& model) {
  model.toggleHideDockOnAllDisplays();
}
void askForALoginItemOnADiskImage(OrvaneModel& model) {
  desk::Machine::current().bundle.isOnReadOnlyVolume = true;
  model.setLaunchAtLoginEnabled(true);
}

INSTANTIATE_TEST_SUITE_P(
    States, TextFitTest,
    testing::Values(State{"English, at rest", "main", OrvaneLanguage::english, stay},
                    State{"English, pinned", "main", OrvaneLanguage::english, pin},
                    State{"English, preventing", "main", OrvaneLanguage::english, prevent},
                    State{"Chinese, at rest", "main", OrvaneLanguage::chinese, stay},
                    State{"Chinese, pinned", "main", OrvaneLanguage::chinese, pin},
                    State{"Chinese, preventing", "main", OrvaneLanguage::chinese, prevent},
                    State{"English settings", "settings", OrvaneLanguage::english, stay},
                    State{"Chinese settings", "settings", OrvaneLanguage::chinese, stay},
                    State{"English settings on a disk image", "settings", OrvaneLanguage::english,
                          askForALoginItemOnADiskImage},
                    State{"Chinese settings on a disk image", "settings", OrvaneLanguage::chinese,
                          askForALoginItemOnADiskImage}));

}  // namespace
}  // namespace orvane
