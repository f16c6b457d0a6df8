// Tooltips of views, and the full text of truncated texts.
#include <gtest/gtest.h>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

const std::string fullText = "abcdefghij";

class TooltipTest : public testing::Test {
 protected:
  // In the middle of the host, where the views are.
  std::string tooltip() const {
    const std::optional<Tooltip> tooltip = test.host->tooltipAt({100, 50});
    return tooltip ? tooltip->text : "";
  }

  TestHost test;
};

TEST_F(TooltipTest, BelongsToItsView) {
  test.show(Rectangle().frame(40, 20).tooltip("Settings"));
  EXPECT_FALSE(test.host->tooltipAt({10, 50}));
  const std::optional<Tooltip> tooltip = test.host->tooltipAt({100, 50});
  ASSERT_TRUE(tooltip);
  EXPECT_EQ(tooltip->text, "Settings");
  EXPECT_EQ(tooltip->frame, (Rect{80, 40, 40, 20}));
}

TEST_F(TooltipTest, IsTheFullTextOfATruncatedText) {
  test.show(lineOfTenCharacters(50));
  EXPECT_EQ(tooltip(), "");
  EXPECT_EQ(test.element(fullText)->cutText, "");
  test.show(lineOfTenCharacters(40));
  EXPECT_EQ(tooltip(), fullText);
  EXPECT_EQ(test.element(fullText)->cutText, fullText);
  EXPECT_FALSE(test.host->tooltipAt({10, 10}));
}

TEST_F(TooltipTest, OfAViewReplacesTheFullTextInIt) {
  test.show(lineOfTenCharacters(40).tooltip("A name"));
  EXPECT_EQ(tooltip(), "A name");
}

TEST_F(TooltipTest, OfAControlIsTheFullTextOfATextInIt) {
  test.show(Button([] {}, VStack(0, {Text("short"), lineOfTenCharacters(40)}).frame(120, 80))
                .style(BareButtonStyle{})
                .accessibilityLabel("A card"));
  EXPECT_EQ(tooltip(), fullText);
  EXPECT_EQ(test.host->tooltipAt({45, 15})->text, fullText);
  EXPECT_EQ(test.host->tooltipAt({45, 15})->frame, (Rect{40, 10, 120, 80}));
  EXPECT_EQ(test.element("A card")->cutText, fullText);
}

TEST_F(TooltipTest, IsAbsentBesideATruncatedText) {
  test.show(HStack(0, {lineOfTenCharacters(40), Spacer(), Text("more")}).frame(200, 100));
  EXPECT_FALSE(test.host->tooltipAt({100, 50}));
  EXPECT_TRUE(test.host->tooltipAt({20, 50}));
}

}  // namespace
}  // namespace orvane::ui
