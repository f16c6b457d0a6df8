// What the guide says in its three states, and what changes between them.
#include "Orvane/permission/OrvanePermissionGuideView.hpp"
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
  /// Where the text that begins so is drawn.
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
  /// What the guide says with this status, in English.
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
  // In the middle of the change the old line is drawn as it was and where it was, and so is the new
  // one.
  machine.advance(0.1);
  const std::string drawn = drawing("guide");
  EXPECT_NEAR(leftOf(waiting), before, 0.5) << drawn;
  EXPECT_NE(drawn.find("Permission not detected yet."), std::string::npos) << drawn;
  EXPECT_EQ(drawn.find("clip"), drawn.rfind("clip")) << "only the whole drawing is cut\n" << drawn;
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
