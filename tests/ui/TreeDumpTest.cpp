// The retained tree as text.
#include <gtest/gtest.h>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

// A text of 5 by 10 points and a button of 15 by 10, centred in a host of 100 by 20 points.
struct Row {
  double spacing = 10;
  double opacity = 1;
  bool hasButton = true;

  View body(const Environment&) const {
    const auto button = [] {
      return Button("Pin", [] {}).style(BareButtonStyle{}).transition(Transition::opacity());
    };
    return HStack(spacing, {Text("a").opacity(opacity), when(hasButton, button)})
        .font(Font::system(10))
        .animation(Curve::linear(1), hasButton);
  }
};

class TreeDumpTest : public testing::Test {
 protected:
  TreeDumpTest() {
    test.show([this](const Environment&) { return row; });
  }

  Row row;
  TestHost test{{100, 20}};
};

TEST_F(TreeDumpTest, ListsNodesWithTheirFramesAndElements) {
  test.drawing();
  EXPECT_EQ(test.host->dumpTree(),
            "Root #1 (35 5 30 10) made drawn\n"
            "  Row #2 (35 5 30 10) made drawn\n"
            "    Animation #3 (35 5 30 10) made drawn\n"
            "      Environment #4 (35 5 30 10) made drawn\n"
            "        Stack #5 (35 5 30 10) made drawn\n"
            "          Opacity #6 (35 5 5 10) made drawn\n"
            "            Text #7 (35 5 5 10) made damaged drawn | text \"a\"\n"
            "          Transition #8 (50 5 15 10) made drawn\n"
            "            Button #9 (50 5 15 10) made drawn | button \"Pin\"\n"
            "              Text #10 (50 5 15 10) made damaged drawn\n");
}

TEST_F(TreeDumpTest, ShowsWhatEachPassDidLast) {
  row.opacity = 0.5;
  row.spacing = 20;
  test.update();
  EXPECT_EQ(test.host->dumpTree(),
            "Root #1 (30 5 40 10) moved resized\n"
            "  Row #2 (30 5 40 10) resized\n"
            "    Animation #3 (30 5 40 10) resized\n"
            "      Environment #4 (30 5 40 10) resized\n"
            "        Stack #5 (30 5 40 10) resized\n"
            "          Opacity #6 (30 5 5 10) changed\n"
            "            Text #7 (30 5 5 10) damaged | text \"a\"\n"
            "          Transition #8 (55 5 15 10) moved\n"
            "            Button #9 (55 5 15 10) | button \"Pin\"\n"
            "              Text #10 (55 5 15 10) damaged\n");
  test.update();
  EXPECT_EQ(test.host->dumpTree().find("damaged"), std::string::npos) << test.host->dumpTree();
}

TEST_F(TreeDumpTest, ShowsWhichNodesWereDrawnSinceThePresentation) {
  test.drawing();
  test.host->takeDirtyRects();
  row.opacity = 0.5;
  test.update();
  RecordingCanvas canvas;
  for (const Rect& dirty : test.host->takeDirtyRects()) {
    test.host->paint(canvas, dirty);
  }
  const std::string dump = test.host->dumpTree();
  EXPECT_NE(dump.find("Text #7 (35 5 5 10) damaged drawn |"), std::string::npos) << dump;
  EXPECT_NE(dump.find("Button #9 (50 5 15 10) |"), std::string::npos) << dump;
}

TEST_F(TreeDumpTest, ShowsTransitionsAndTheFocus) {
  test.press(Key::tab);
  EXPECT_NE(test.host->dumpTree().find("| button \"Pin\" focused\n"), std::string::npos);
  row.hasButton = false;
  test.update();
  test.at(0.5);
  // The text moves to the middle, half of the 12.5 points by now; the button fades out.
  EXPECT_EQ(test.host->dumpTree(),
            "Root #1 (47.5 5 5 10) moved resized\n"
            "  Row #2 (47.5 5 5 10) resized\n"
            "    Animation #3 (47.5 5 17.5 10) resized animating\n"
            "      Environment #4 (47.5 5 17.5 10) resized animating\n"
            "        Stack #5 (47.5 5 17.5 10) resized animating\n"
            "          Opacity #6 (47.5 5 5 10)\n"
            "            Text #7 (47.5 5 5 10) | text \"a\"\n"
            "          Transition #8 (62.5 5 15 10) leaving\n"
            "            Button #9 (62.5 5 15 10) leaving\n"
            "              Text #10 (62.5 5 15 10) leaving damaged\n");
}

}  // namespace
}  // namespace orvane::ui
