// The layout of the main panel, in points from its top left corner.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

class ContentViewLayoutTest : public PanelFixture {
 protected:
  [[nodiscard]] ui::Rect button(const std::string& label) {
    const auto found = element(ui::Role::button, label);
    EXPECT_TRUE(found) << "no button " << label;
    return found ? found->frame : ui::Rect{};
  }
};

TEST_F(ContentViewLayoutTest, TheTitleBarHasItsControlsAtTheEndsAndItsTitleInTheMiddle) {
  openMain();
  EXPECT_EQ(button("Close"), (ui::Rect{28, 26, 14, 14}));
  EXPECT_EQ(button("Minimise"), (ui::Rect{51, 26, 14, 14}));
  EXPECT_EQ(button("Settings"), (ui::Rect{638, 16, 34, 34}));
  const ui::Rect title = frameOf("Orvane");
  EXPECT_NEAR(title.center().y, 33, 0.1);
  // The icon of 22 points, 9 points of air, and the name are centred together.
  EXPECT_NEAR((title.x - 31 + title.right()) / 2, 350, 0.1);
}

TEST_F(ContentViewLayoutTest, PanelsAndTheirControlsHaveTheirFrames) {
  openMain();
  EXPECT_EQ(drawn("stroke rounded(25 91 650 269 r12"), 1);
  EXPECT_EQ(drawn("stroke rounded(25 370 650 121 r12"), 1);
  EXPECT_EQ(button("Pin Dock"), (ui::Rect{45, 311.5, 610, 38}));
  EXPECT_EQ(button("Prevent Dock Pop-Up"), (ui::Rect{45, 446.5, 610, 34}));
  EXPECT_EQ(withRole(ui::Role::scrollArea, mainPanel).at(0).frame, (ui::Rect{26, 153.5, 648, 154}));
  EXPECT_EQ(frameOf("DELL"), (ui::Rect{235, 159.5, 176, 142}));
  // The selected card is scaled around its centre.
  EXPECT_NEAR(frameOf("Display").width, 176 * 1.012, 1e-6);
  EXPECT_NEAR(frameOf("Display").center().x, 45 + 88, 1e-6);
}

TEST_F(ContentViewLayoutTest, TheRowsOfThePanelsAreSpacedEvenly) {
  openMain();
  const auto shapeTops = [](const std::string& size) {
    std::vector<double> tops;
    for (const std::string& line : drawnLines(mainPanel)) {
      const std::size_t start = line.find("fill rounded(45 ");
      if (start != std::string::npos && line.find(" " + size + " r") != std::string::npos) {
        tops.push_back(std::stod(line.substr(start + 16)));
      }
    }
    return tops;
  };
  const std::vector<double> icons = shapeTops("48 48");
  ASSERT_GE(icons.size(), 2U);
  const ui::Rect pin = button("Pin Dock");
  const ui::Rect prevent = button("Prevent Dock Pop-Up");
  const ui::Rect card = withRole(ui::Role::radioButton, mainPanel).at(1).frame;
  // The panels' edges are at 91 and 360, and at 370 and 491.
  EXPECT_EQ(360 - pin.bottom(), 10.5);
  EXPECT_EQ(491 - prevent.bottom(), 10.5);
  EXPECT_EQ(pin.y - card.bottom(), 10);
  EXPECT_EQ(card.y - (91 + 10.5 + 48), 10);
  // On whole pixels, as they are drawn at one pixel to the point.
  EXPECT_NEAR(icons.front() - 91, 10.5, 0.5);
  EXPECT_EQ(icons.back() - 370, icons.front() - 91);
}

TEST_F(ContentViewLayoutTest, CardsAreLevelInEveryScript) {
  attach(4, CGRectMake(3360, 0, 1920, 1080), "左侧显示器", false);
  openMain();
  const auto levels = [](const std::string& mark, const std::string& after) {
    std::vector<std::string> found;
    for (const std::string& line : drawnLines(mainPanel)) {
      const std::size_t start = line.find(mark);
      if (start != std::string::npos) {
        // The y coordinate, which follows the x coordinate.
        const std::size_t place = line.find(' ', line.find(after, start) + after.size());
        found.push_back(line.substr(place, line.find(' ', place + 1) - place));
      }
    }
    return found;
  };
  for (const OrvaneLanguage::Value language : {OrvaneLanguage::english, OrvaneLanguage::chinese}) {
    model().setAppLanguage(language);
    machine.runDue();
    // The selected card is scaled; the three others show a monitor each.
    const std::vector<std::string> images = levels("image DisplayMonitor ", "(");
    const std::vector<std::string> names = levels(" 13/500 ", " at ");
    const std::vector<std::string> roles = levels(" 11/600 rgba(0 0 0", " at ");
    EXPECT_EQ(images, std::vector<std::string>(3, images.at(0)));
    EXPECT_EQ(names, std::vector<std::string>(3, names.at(0)));
    EXPECT_EQ(roles, std::vector<std::string>(3, roles.at(0)));
  }
}

TEST_F(ContentViewLayoutTest, BothLightsShowTheirSymbolsWhileThePointerIsInTheirCluster) {
  openMain();
  const CGPoint corner = server().topLeftOf(*window(mainPanel));
  const auto symbolsWithPointerAt = [&](double x, double y) {
    machine.mouse.moveTo({corner.x + x, corner.y + y});
    machine.advance(1);
    return drawn("symbol xmark ") + drawn("symbol minus ");
  };
  EXPECT_EQ(symbolsWithPointerAt(350, 33), 0);
  for (const auto& [x, y] : std::vector<std::pair<double, double>>{
           {35, 33}, {58, 33}, {46, 33}, {30, 6}, {149, 33}, {100, 65}}) {
    EXPECT_EQ(symbolsWithPointerAt(x, y), 2) << x << " " << y;
  }
  EXPECT_EQ(symbolsWithPointerAt(151, 33), 0);
  EXPECT_EQ(symbolsWithPointerAt(100, 67), 0);
}

TEST_F(ContentViewLayoutTest, NothingMovesWhenTheHintReplacesTheDescription) {
  openMain();
  const ui::Rect toggle = button("Prevent Dock Pop-Up");
  const ui::Rect pin = button("Pin Dock");
  ASSERT_TRUE(press("Prevent Dock Pop-Up"));
  machine.advance(2);
  const ui::Rect allow = button("Allow Dock Pop-Up");
  EXPECT_EQ(allow.y, toggle.y);
  EXPECT_EQ(allow.x, toggle.x);
  EXPECT_EQ(button("Pin Dock"), pin);
  const ui::Rect settings = button("Open Dock Settings");
  EXPECT_EQ(settings, (ui::Rect{465, toggle.y, 190, 34}));
  EXPECT_EQ(allow.width, 410);
}

TEST_F(ContentViewLayoutTest, CardsThatDoNotFitCanBeScrolledTo) {
  attach(4, CGRectMake(3360, 0, 1920, 1080), "HP", false);
  openMain();
  const ui::Rect area = withRole(ui::Role::scrollArea, mainPanel).at(0).frame;
  EXPECT_GT(frameOf("HP").right(), area.right());
  const CGPoint corner = server().topLeftOf(*window(mainPanel));
  machine.mouse.moveTo({corner.x + 300, corner.y + 240});
  window(mainPanel)->content->host().scroll({300, 240}, 0, 500);
  machine.advance(1);
  EXPECT_LE(frameOf("HP").right(), area.right());
}

}  // namespace
}  // namespace orvane
