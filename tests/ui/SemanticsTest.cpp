// The semantics tree, and what can be done through it.
#include <functional>

#include <gtest/gtest.h>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ScrollView.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/support/SemanticsText.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

std::string described(const View& view) {
  TestHost test;
  test.show(view);
  return semanticsText(test.host->semantics());
}

TEST(SemanticsTest, TextsAndButtonsAreElementsAndDecorationIsNot) {
  EXPECT_EQ(
      described(VStack(8, {Text("Title"), Symbol("lock"), Image("photo"), Capsule(),
                           Button([] {}, HStack(8, {Symbol("lock"), Text("Pin"), Text("Dock")}))})),
      "group\n"
      "  text \"Title\"\n"
      "  button \"Pin, Dock\"\n");
}

TEST(SemanticsTest, ModifiersCompleteWhatAViewSays) {
  EXPECT_EQ(described(HStack(
                8, {Button([] {}, Symbol("xmark")).accessibilityLabel("Close"),
                    Button("Card", [] {}).accessibilitySelected(true),
                    Symbol("lock").accessibilityLabel("Locked").accessibilityRole(Role::image),
                    Text("secret").accessibilityHidden(),
                    HStack(8, {Text("a"), Text("b")}).accessibilityLabel("Both"),
                    Button("Pin", [] {}).accessibilityValue("on").disabled(true)})),
            "group\n"
            "  button \"Close\"\n"
            "  button \"Card\" selected\n"
            "  image \"Locked\"\n"
            "  group \"Both\"\n"
            "    text \"a\"\n"
            "    text \"b\"\n"
            "  button \"Pin\" = \"on\" disabled\n");
}

TEST(SemanticsTest, AScrollAreaHoldsItsContent) {
  EXPECT_EQ(described(ScrollView(Text("a"))), "group\n  scroll area\n    text \"a\"\n");
}

TEST(SemanticsTest, WhatHasFadedOutIsNotThere) {
  EXPECT_EQ(described(VStack(8, {Text("a").opacity(0), Text("b").opacity(0.1)})),
            "group\n  text \"b\"\n");
}

TEST(SemanticsTest, APressRunsTheSameActionAsAClick) {
  TestHost test;
  int presses = 0;
  bool isDisabled = false;
  test.show(
      [&](const Environment&) { return Button("Pin", [&] { ++presses; }).disabled(isDisabled); });
  const std::uint64_t id = test.element("Pin")->id;
  EXPECT_TRUE(test.host->press(id));
  EXPECT_EQ(presses, 1);
  isDisabled = true;
  test.update();
  EXPECT_EQ(test.element("Pin")->id, id) << "the id stays while the view stays";
  EXPECT_FALSE(test.host->press(id));
  EXPECT_EQ(presses, 1);
  EXPECT_FALSE(test.host->press(999));
}

TEST(SemanticsTest, FramesAreThoseOnScreen) {
  TestHost test({100, 40});
  test.show(Rectangle().frame(40, 20).accessibilityLabel("box").scale(2).offset(5, 0));
  EXPECT_EQ(test.element("box")->frame, (Rect{15, 0, 80, 40}));
}

TEST(SemanticsTest, AScrollIsReportedWithoutARebuild) {
  TestHost test({30, 10});
  const auto changesOf = [&](const std::function<void()>& change) {
    const int before = test.semanticsChanges;
    change();
    return test.semanticsChanges - before;
  };
  double position = 0;
  test.show([&](const Environment&) {
    return ScrollView(HStack(0, {Button("aaaaaa", [] {}), Button("bbbbbb", [] {})}))
        .font(Font::system(10))
        .offset(0, position)
        .animation(Curve::linear(1), position);
  });
  test.at(1);
  const int redraws = test.redrawRequests;
  EXPECT_EQ(changesOf([&] { test.host->scroll({5, 5}, 20, 0); }), 1);
  EXPECT_EQ(changesOf([&] { test.press(Key::tab); }), 1) << "the focus";
  EXPECT_EQ(test.redrawRequests, redraws + 2);
  EXPECT_EQ(changesOf([&] { test.update(); }), 1);
  position = 4;
  test.host->invalidate();
  test.at(2);
  EXPECT_EQ(changesOf([&] { test.at(2.5); }), 0) << "on the way";
  EXPECT_EQ(changesOf([&] { test.at(3); }), 1) << "come to rest";
  EXPECT_EQ(changesOf([&] { test.at(4); }), 0);
}

TEST(SemanticsTest, AViewCanDismissItsHost) {
  TestHost test;
  test.show([](const Environment& environment) {
    return Button("Close", [environment] { environment.dismiss(); });
  });
  test.host->press(test.element("Close")->id);
  EXPECT_EQ(test.dismissals, 1);
}

}  // namespace
}  // namespace orvane::ui
