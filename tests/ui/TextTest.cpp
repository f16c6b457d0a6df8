// A line of text in too little room: it is set closer, or cut and told in full.
#include <gtest/gtest.h>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

const std::string whole = "abcdefghij";

// Ten characters of the synthetic font are 50 points wide at size 10.
View line(double width) {
  return Text(whole).font(Font::system(10)).lineLimit(1).frame({.width = width});
}

class TextTest : public testing::Test {
 protected:
  bool draws(const std::string& part) const {
    return test.drawing().find(part) != std::string::npos;
  }
  // At the middle of the host, where there is what is shown.
  std::string hint() const {
    const std::optional<Tooltip> tooltip = test.host->tooltipAt({100, 50});
    return tooltip ? tooltip->text : "";
  }

  TestHost test;
};

TEST_F(TextTest, IsSetCloserByNoMoreThanItNeedsAndMay) {
  test.show(line(50).allowsTightening());
  EXPECT_TRUE(draws("text \"abcdefghij\" 10/400 ")) << test.drawing();
  // A fifth of a point for each character, in steps of a 64th of a point.
  test.show(line(48).allowsTightening());
  EXPECT_TRUE(draws("text \"abcdefghij\" 10/400/-0.203 ")) << test.drawing();
  EXPECT_LE(test.element(whole)->frame.width, 48);
  test.show(line(47).allowsTightening());
  EXPECT_TRUE(draws("text \"abcdefgh…\" 10/400 ")) << test.drawing();
  test.show(line(47).allowsTightening(0.06));
  EXPECT_TRUE(draws("text \"abcdefghij\" 10/400/-0.313 ")) << test.drawing();
  test.show(line(48));
  EXPECT_TRUE(draws("…")) << test.drawing();
}

TEST_F(TextTest, SeveralLinesAreNotSetCloser) {
  test.show(Text("aaaaaaaaaa bbbbbbbbbb")
                .font(Font::system(10))
                .lineLimit(2)
                .allowsTightening()
                .frame({.width = 48}));
  EXPECT_FALSE(draws("/-0")) << test.drawing();
}

TEST_F(TextTest, FollowsWhatItInheritsLater) {
  test.show(line(40));
  EXPECT_TRUE(draws("\"abcdefg…\"")) << test.drawing();
  test.show(line(40).truncationMode(TruncationMode::middle));
  EXPECT_TRUE(draws("\"abcd…hij\"")) << test.drawing();
  test.show(line(48).allowsTightening());
  EXPECT_FALSE(draws("…")) << test.drawing();
}

TEST_F(TextTest, WhatIsCutIsToldInFull) {
  test.show(line(50));
  EXPECT_EQ(hint(), "");
  EXPECT_EQ(test.element(whole)->cutText, "");
  test.show(line(40));
  EXPECT_EQ(hint(), whole);
  EXPECT_EQ(test.element(whole)->cutText, whole);
  EXPECT_FALSE(test.host->tooltipAt({10, 10}));
}

TEST_F(TextTest, TheHintOfAViewGoesBeforeWhatIsCutInIt) {
  test.show(line(40).tooltip("A name"));
  EXPECT_EQ(hint(), "A name");
}

TEST_F(TextTest, AControlTellsAnywhereOverItWhatIsCutInIt) {
  test.show(Button([] {}, VStack(0, {Text("short"), line(40)}).frame(120, 80))
                .style(BareButtonStyle{})
                .accessibilityLabel("A card"));
  EXPECT_EQ(hint(), whole);
  EXPECT_EQ(test.host->tooltipAt({45, 15})->text, whole);
  EXPECT_EQ(test.host->tooltipAt({45, 15})->frame, (Rect{40, 10, 120, 80}));
  EXPECT_EQ(test.element("A card")->cutText, whole);
}

TEST_F(TextTest, NothingIsToldBesideATextThatIsCut) {
  test.show(HStack(0, {line(40), Spacer(), Text("more")}).frame(200, 100));
  EXPECT_FALSE(test.host->tooltipAt({100, 50}));
  EXPECT_TRUE(test.host->tooltipAt({20, 50}));
}

}  // namespace
}  // namespace orvane::ui
