// The guide's texts in its three states, and the transitions between them.
#include <cmath>
#include <cstdio>
#include <numbers>
#include <regex>
#include <string>
#include <utility>

#include "Orvane/permission/OrvanePermissionGuideView.hpp"
#include "Orvane/ui/draw/TextMeasurer.hpp"
#include "Orvane/ui/host/ViewHost.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

class OrvanePermissionGuideViewTest : public PermissionFlow {
 protected:
  ui::SemanticsNode element(const std::string& label) {
    for (const ui::SemanticsNode& child : children("guide")) {
      if (child.label == label) {
        return child;
      }
    }
    ADD_FAILURE() << "there is no " << label;
    return {};
  }
  /// The left edge of the drawn text that begins with `text`.
  double leftOf(const std::string& text) {
    const std::string drawn = drawing("guide");
    const std::size_t start = drawn.find("text \"" + text);
    const std::size_t at = drawn.find(" at ", start);
    if (start == std::string::npos || at == std::string::npos) {
      ADD_FAILURE() << text << " is not drawn";
      return 0;
    }
    return std::stod(drawn.substr(at + 4));
  }
  /// The y coordinate, in the card.
  double iconAreasMiddle() { return children("guide")[2].frame.bottom() + 22 + 10 + 136.0 / 2; }
  /// The guide's semantics with this status, in English.
  static std::string saying(const std::string& icon, const std::string& status) {
    return "group\n"
           "  button \"Close\"\n"
           "  heading \"Next Step\"\n"
           "  text \"In Privacy & Security > Accessibility, turn on Orvane. If Orvane is not "
           "listed, click \"+\" to add it, or drag the icon below into the list.\"\n" +
           icon + "  text \"" + status + "\"\n  button \"Done\"\n";
  }
};

const std::string icon = "  image \"Orvane\"\n";
const std::string waiting = "Waiting for permission in System Settings";
const std::string notDetected =
    "Permission not detected yet. Make sure Orvane is enabled in Accessibility.";

TEST_F(OrvanePermissionGuideViewTest, ItSpeaksEnglish) {
  openGuide();
  EXPECT_EQ(elements("guide"), saying(icon, waiting));
}

TEST_F(OrvanePermissionGuideViewTest, ItSpeaksChinese) {
  openGuide();
  machine.userDefaults.set("appLanguage", std::string("chinese"));
  guide().close();
  guide().show(nullptr);
  const auto saidWith = [](const std::string& shown, const std::string& status) {
    return "group\n"
           "  button \"关闭\"\n"
           "  heading \"下一步\"\n"
           "  text \"在“隐私与安全性”>“辅助功能”中，为 Orvane 打开开关。如果列表里没有 "
           "Orvane，可点“+”添加应用，或将下方图标拖入列表。\"\n" +
           shown + "  text \"" + status + "\"\n  button \"完成\"\n";
  };
  EXPECT_EQ(elements("guide"), saidWith(icon, "正在等待你在系统设置中完成授权"));
  machine.advance(11);
  EXPECT_EQ(elements("guide"),
            saidWith(icon, "暂未检测到权限，请确认 Orvane 已在“辅助功能”列表中开启"));
  machine.permission.setTrusted(true);
  machine.advance(1.5);
  EXPECT_EQ(elements("guide"), saidWith("", "权限已开启"));
}

TEST_F(OrvanePermissionGuideViewTest, AnUnknownStoredLanguageIsTheSystems) {
  machine.userDefaults.set("appLanguage", std::string("klingon"));
  machine.locale.preferredLanguages = {"zh-Hans-CN"};
  guide().show(nullptr);
  EXPECT_EQ(children("guide").at(1).label, "下一步");
  machine.locale.preferredLanguages = {"en-GB"};
  guide().show(nullptr);
  EXPECT_EQ(elements("guide"), saying(icon, waiting));
}

TEST_F(OrvanePermissionGuideViewTest, AnotherLanguageShowsWhenTheStateIsSetAgain) {
  openGuide();
  machine.advance(20);
  EXPECT_NE(elements("guide").find("Done"), std::string::npos);
  machine.userDefaults.set("appLanguage", std::string("chinese"));
  machine.advance(1);
  EXPECT_EQ(elements("guide").find("Done"), std::string::npos);
  EXPECT_NE(elements("guide").find("完成"), std::string::npos);
}

TEST_F(OrvanePermissionGuideViewTest, TheTimeOutChangesTheStatusLineOnly) {
  openGuide();
  const ui::Rect button = element("Done").frame;
  const ui::Rect image = element("Orvane").frame;
  machine.advance(11);
  EXPECT_EQ(elements("guide"), saying(icon, notDetected));
  EXPECT_TRUE(element("Done").frame == button);
  EXPECT_TRUE(element("Orvane").frame == image);
  EXPECT_NE(drawing("guide").find("arrow.down"), std::string::npos);
}

TEST_F(OrvanePermissionGuideViewTest, OneStatusFadesIntoTheOtherAndIsNeverCut) {
  openGuide();
  const double before = leftOf(waiting);
  machine.advance(11);
  // During the transition the old line is drawn unchanged and in place, later the new one, but
  // never both.
  const std::string newLine = "Permission not detected yet.";
  bool isOldSeen = false;
  bool isNewSeen = false;
  for (int frame = 0; frame < 30; ++frame) {
    machine.advance(1.0 / 60);
    const std::string drawn = drawing("guide");
    const bool hasOld = drawn.find(waiting) != std::string::npos;
    const bool hasNew = drawn.find(newLine) != std::string::npos;
    EXPECT_FALSE(hasOld && hasNew) << drawn;
    EXPECT_EQ(drawn.find("clip"), drawn.rfind("clip")) << "only the whole drawing is cut\n"
                                                       << drawn;
    if (hasOld) {
      EXPECT_NEAR(leftOf(waiting), before, 0.5) << drawn;
    }
    isOldSeen = isOldSeen || hasOld;
    isNewSeen = isNewSeen || hasNew;
  }
  EXPECT_TRUE(isOldSeen && isNewSeen);
  machine.advance(2);
  EXPECT_EQ(drawing("guide").find(waiting), std::string::npos);
}

TEST_F(OrvanePermissionGuideViewTest, SuccessPutsTheCheckMarkInThePlaceOfArrowAndIcon) {
  openGuide();
  const ui::Rect button = element("Done").frame;
  EXPECT_NE(drawing("guide").find("arrow.down"), std::string::npos);
  EXPECT_NE(drawing("guide").find("AppIcon"), std::string::npos);
  machine.permission.setTrusted(true);
  machine.advance(2.4);
  ASSERT_TRUE(isGuideVisible());
  EXPECT_EQ(elements("guide"), saying("", "Permission Enabled"));
  const std::string drawn = drawing("guide");
  EXPECT_EQ(drawn.find("arrow.down"), std::string::npos) << drawn;
  EXPECT_EQ(drawn.find("AppIcon"), std::string::npos) << drawn;
  EXPECT_NE(drawn.find("checkmark.circle.fill"), std::string::npos) << drawn;
  EXPECT_TRUE(element("Done").frame == button) << "the card keeps its layout";
}

TEST_F(OrvanePermissionGuideViewTest, TheCheckMarkComesBySizeAndOpacityAndFramesEndWithIt) {
  openGuide();
  const auto view = window("guide")->content;
  EXPECT_FALSE(view->hasFrames());
  machine.permission.setTrusted(true);
  machine.advance(1.1);
  EXPECT_TRUE(view->hasFrames());
  const std::string early = drawing("guide");
  machine.advance(0.1);
  EXPECT_NE(drawing("guide"), early);
  EXPECT_NE(early.find("arrow.down"), std::string::npos) << "the arrow is still fading";
}

TEST_F(OrvanePermissionGuideViewTest, TheCheckMarkGrowsInItsPlaceAsACriticallyDampedSpringDoes) {
  openGuide();
  machine.permission.setTrusted(true);
  machine.advance(1);
  const std::regex mark(
      R"(opacity (\S+)\n\s+save\n\s+transform scale (\S+) (\S+) translate (\S+) (\S+)\n)"
      R"(\s+symbol checkmark\.circle\.fill \S+ rgba\([^)]*\) \((\S+) (\S+) (\S+) (\S+)\)\n)");
  double seconds = 0;
  for (const double step : {0.0625, 0.125, 0.1875}) {
    machine.advance(step);
    seconds += step;
    // A response of half a second is a natural frequency of 2 pi / 0.5; with a damping fraction of
    // 1 the rest of the way is (1 + frequency * time) * exp(-frequency * time).
    const double phase = 2 * std::numbers::pi / 0.5 * seconds;
    const double fraction = 1 - (1 + phase) * std::exp(-phase);
    const std::string drawn = drawing("guide");
    std::smatch match;
    ASSERT_TRUE(std::regex_search(drawn, match, mark)) << drawn;
    const auto number = [&](std::size_t index) { return std::stod(match[index]); };
    // The recorded drawing has three decimals.
    EXPECT_NEAR(number(1), fraction, 0.001) << "the opacity after " << seconds;
    EXPECT_NEAR(number(2), fraction, 0.001) << "the scale after " << seconds;
    EXPECT_EQ(number(3), number(2));
    EXPECT_NEAR(number(2) * (number(6) + number(8) / 2) + number(4), 180, 0.2);
    EXPECT_NEAR(number(3) * (number(7) + number(9) / 2) + number(5), iconAreasMiddle(), 0.2);
  }
}

TEST_F(OrvanePermissionGuideViewTest, WhatTheCheckMarkReplacesFadesWhereItStands) {
  openGuide();
  const auto placeOfIcon = [this] {
    const std::string drawn = drawing("guide");
    const std::size_t start = drawn.find("image AppIcon (");
    return drawn.substr(start, drawn.find(')', start) - start);
  };
  const std::string before = placeOfIcon();
  machine.permission.setTrusted(true);
  machine.advance(1.25);
  double x = 0;
  double y = 0;
  double xBefore = 0;
  double yBefore = 0;
  ASSERT_EQ(std::sscanf(before.c_str(), "image AppIcon (%lf %lf", &xBefore, &yBefore), 2);
  ASSERT_EQ(std::sscanf(placeOfIcon().c_str(), "image AppIcon (%lf %lf", &x, &y), 2);
  // At rest it is aligned to whole pixels.
  EXPECT_NEAR(x, xBefore, 0.5);
  EXPECT_NEAR(y, yBefore, 0.5);
}

TEST_F(OrvanePermissionGuideViewTest, WithReducedMotionTheCheckMarkIsThereAtOnce) {
  machine.appearance.reducesMotion = true;
  openGuide();
  machine.permission.setTrusted(true);
  machine.advance(1);
  EXPECT_FALSE(window("guide")->content->hasFrames());
  EXPECT_EQ(drawing("guide").find("arrow.down"), std::string::npos);
}

TEST_F(OrvanePermissionGuideViewTest, ThePartsHaveTheirMeasures) {
  openGuide();
  const ui::Rect close = element("Close").frame;
  const ui::Rect image = element("Orvane").frame;
  const ui::Rect done = element("Done").frame;
  EXPECT_DOUBLE_EQ(close.right(), 360 - 16);
  EXPECT_DOUBLE_EQ(image.width, 82);
  EXPECT_DOUBLE_EQ(image.height, 82);
  EXPECT_EQ(done.x, 40);
  EXPECT_EQ(done.width, 280);
  const ui::Rect title = element("Next Step").frame;
  const ui::Rect instruction = children("guide")[2].frame;
  EXPECT_NEAR(title.y, close.bottom() + 22, 1e-9);
  EXPECT_NEAR(instruction.y, title.bottom() + 22, 1e-9);
  // The arrow's 30 points and the 14 below it, with the icon in the middle of 136 points.
  const double iconArea = instruction.bottom() + 22 + 10;
  EXPECT_NEAR(image.y, iconArea + (136.0 - 30 - 14 - 82) / 2 + 30 + 14, 1e-9);
  const ui::Rect status = element(waiting).frame;
  const double statusLine = iconArea + 136 + 10 + 22;
  EXPECT_NEAR(status.y + status.height / 2, statusLine + 34.0 / 2, 1e-9);
  EXPECT_NEAR(done.y, statusLine + 34 + 22, 1e-9);
  // The column is centred in the card: 16 points above the close control, 20 below the button.
  EXPECT_NEAR(close.y - 16, 500 - done.bottom() - 20, 1e-9);
  EXPECT_GE(close.y, 16);
}

/// Measures one text as `width` wide and every other text as very narrow.
class OneTextMeasurer : public ui::TextMeasurer {
 public:
  OneTextMeasurer(std::string text, double width) : text_(std::move(text)), width_(width) {}

  ui::TextLayout layout(const std::string& text, const ui::Font& font, double maximumWidth,
                        ui::LineLimit /*limit*/) override {
    const double width = text == text_ ? width_ : 10;
    if (width <= maximumWidth) {
      return {{{text, width}}, font.size, font.size, false};
    }
    const std::size_t half = text.size() / 2;
    return {{{text.substr(0, half), width / 2}, {text.substr(half), width / 2}},
            font.size,
            font.size,
            false};
  }

 private:
  std::string text_;
  double width_;
};

TEST_F(OrvanePermissionGuideViewTest, InstructionAndStatusKeepTheirDistancesFromTheEdges) {
  const auto isOneLine = [](const std::string& text, double width, PermissionGuideState shownIn) {
    OneTextMeasurer measurer(text, width);
    ui::HostPlatform platform;
    platform.text = &measurer;
    ui::ViewHost host(std::move(platform));
    host.setSize({OrvanePermissionGuideView::width, OrvanePermissionGuideView::height});
    host.setRoot([shownIn](const ui::Environment& /*environment*/) -> ui::View {
      return OrvanePermissionGuideView{shownIn, [] {}};
    });
    host.layoutIfNeeded();
    ui::RecordingCanvas canvas;
    host.paint(canvas, {0, 0, host.size().width, host.size().height});
    return canvas.text().find("text \"" + text + "\"") != std::string::npos;
  };
  const std::string instruction =
      "In Privacy & Security > Accessibility, turn on Orvane. If Orvane is not listed, click \"+\" "
      "to add it, or drag the icon below into the list.";
  struct Row {
    std::string text;
    PermissionGuideState shownIn;
    double distance;
  };
  using State = PermissionGuideState;
  // The kit's default padding, and the status line's own.
  for (const Row& row :
       {Row{instruction, State::checking, ui::defaultPadding}, Row{waiting, State::checking, 22},
        Row{notDetected, State::timeout, 22}, Row{"Permission Enabled", State::success, 22}}) {
    const double room = 360 - 2 * row.distance;
    EXPECT_TRUE(isOneLine(row.text, room, row.shownIn)) << row.text;
    EXPECT_FALSE(isOneLine(row.text, room + 0.25, row.shownIn)) << row.text;
  }
}

TEST_F(OrvanePermissionGuideViewTest, NoTextIsCut) {
  for (const char* const language : {"english", "chinese"}) {
    machine.userDefaults.set("appLanguage", std::string(language));
    guide().show(nullptr);
    EXPECT_EQ(drawing("guide").find("…"), std::string::npos);
    machine.advance(11);
    EXPECT_EQ(drawing("guide").find("…"), std::string::npos) << drawing("guide");
  }
}

}  // namespace
}  // namespace orvane
