// The alert's texts and layout.
#include "Orvane/permission/OrvaneAccessibilityPermissionAlertView.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

class OrvaneAccessibilityPermissionAlertViewTest : public PermissionFlow {
 protected:
  ui::SemanticsNode element(std::size_t index) { return children("alert").at(index); }
};

constexpr const char* english =
    "group\n"
    "  heading \"Enable macOS Accessibility Permission\"\n"
    "  text \"Orvane uses this permission only when you enable Pin Dock or Prevent Dock Pop-Up. It "
    "checks whether the pointer reaches a display edge, then prevents unintended Dock "
    "activation.\"\n"
    "  text \"It does not access keyboard input, screen contents, or files, and does not collect, "
    "record, or upload personal data. You can skip this for now and turn it off anytime in System "
    "Settings.\"\n"
    "  button \"Not Now\"\n"
    "  button \"Open Privacy Settings\"\n";
constexpr const char* chinese =
    "group\n"
    "  heading \"需要开启 macOS“辅助功能”权限\"\n"
    "  text \"Orvane 仅在你启用固定 Dock 或防止 Dock "
    "弹出时使用此权限，用于检测鼠标是否移到屏幕边缘，并阻止 Dock 意外弹出。\"\n"
    "  text \"不会访问键盘输入、屏幕内容或文件，也不会收集、记录或上传个人数据。你可以暂不启用，"
    "并随时在系统设置中关闭此权限。\"\n"
    "  button \"取消\"\n"
    "  button \"打开隐私设置\"\n";

TEST_F(OrvaneAccessibilityPermissionAlertViewTest, ItSpeaksEnglish) {
  check('a');
  EXPECT_EQ(elements("alert"), english);
}

TEST_F(OrvaneAccessibilityPermissionAlertViewTest, ItSpeaksChinese) {
  machine.userDefaults.set("appLanguage", std::string("chinese"));
  check('a');
  EXPECT_EQ(elements("alert"), chinese);
}

TEST_F(OrvaneAccessibilityPermissionAlertViewTest, AnUnknownStoredLanguageIsTheSystems) {
  machine.userDefaults.set("appLanguage", std::string("klingon"));
  machine.locale.preferredLanguages = {"zh-Hans-CN"};
  check('a');
  EXPECT_EQ(elements("alert"), chinese);
  press("取消", "alert");
  machine.advance(1);
  machine.locale.preferredLanguages = {"en-GB"};
  check('a');
  EXPECT_EQ(elements("alert"), english);
}

TEST_F(OrvaneAccessibilityPermissionAlertViewTest,
       TheTwoButtonsAreEquallyWideWithTwelvePointsBetween) {
  check('a');
  const ui::Rect first = element(3).frame;
  const ui::Rect second = element(4).frame;
  EXPECT_EQ(first.x, 24);
  EXPECT_EQ(first.width, 210);
  EXPECT_EQ(second.x, 246);
  EXPECT_EQ(second.width, 210);
  EXPECT_EQ(first.y, second.y);
}

TEST_F(OrvaneAccessibilityPermissionAlertViewTest, ThePartsFollowAtTheirDistances) {
  check('a');
  // Icon, title, paragraphs and buttons 14 apart, the paragraphs 6, the buttons 4 more.
  EXPECT_DOUBLE_EQ(element(1).frame.y, element(0).frame.bottom() + 14);
  EXPECT_DOUBLE_EQ(element(2).frame.y, element(1).frame.bottom() + 6);
  EXPECT_DOUBLE_EQ(element(3).frame.y, element(2).frame.bottom() + 14 + 4);
  // Centred in the panel, with the icon of 64 points above the title.
  const double top = element(0).frame.y - 14 - 64;
  EXPECT_NEAR(top, 372 - element(3).frame.bottom(), 1e-9);
  EXPECT_GE(top, 24);
}

TEST_F(OrvaneAccessibilityPermissionAlertViewTest, NoTextIsCut) {
  for (const char* const language : {"english", "chinese"}) {
    machine.userDefaults.set("appLanguage", std::string(language));
    check('a');
    EXPECT_EQ(drawing("alert").find("…"), std::string::npos) << drawing("alert");
    key(ui::Key::escape);
    machine.advance(1);
  }
}

TEST_F(OrvaneAccessibilityPermissionAlertViewTest, ItShowsTheApplicationsIcon) {
  check('a');
  EXPECT_NE(drawing("alert").find("AppIcon"), std::string::npos);
  EXPECT_EQ(drawing("alert").find("dock.rectangle"), std::string::npos);
}

TEST_F(OrvaneAccessibilityPermissionAlertViewTest, WithoutAnIconItShowsTheDocksSymbolInItsPlace) {
  server().resources().images.remove("AppIcon");
  check('a');
  EXPECT_EQ(drawing("alert").find("AppIcon"), std::string::npos);
  EXPECT_NE(drawing("alert").find("dock.rectangle"), std::string::npos);
  const double top = element(0).frame.y - 14 - 64;
  EXPECT_NEAR(top, 372 - element(3).frame.bottom(), 1e-9) << "in a frame of the icon's size";
}

}  // namespace
}  // namespace orvane
