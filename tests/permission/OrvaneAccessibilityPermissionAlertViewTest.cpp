// The alert's texts, and its icon when the image is missing. tests/pictures has its look.
#include "Orvane/permission/OrvaneAccessibilityPermissionAlertView.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

using OrvaneAccessibilityPermissionAlertViewTest = PermissionFlow;

TEST_F(OrvaneAccessibilityPermissionAlertViewTest, IsInEnglish) {
  check('a');
  EXPECT_EQ(description("alert"),
            "group\n"
            "  heading \"Enable macOS Accessibility Permission\"\n"
            "  text \"Orvane uses this permission only when you enable Pin Dock or Prevent Dock "
            "Pop-Up. It checks whether the pointer reaches a display edge, then prevents "
            "unintended Dock activation.\"\n"
            "  text \"It does not access keyboard input, screen contents, or files, and does not "
            "collect, record, or upload personal data. You can skip this for now and turn it off "
            "anytime in System Settings.\"\n"
            "  button \"Not Now\"\n"
            "  button \"Open Privacy Settings\"\n");
}

TEST_F(OrvaneAccessibilityPermissionAlertViewTest, IsInChinese) {
  machine.userDefaults.set("appLanguage", std::string("chinese"));
  check('a');
  EXPECT_EQ(description("alert"),
            "group\n"
            "  heading \"需要开启 macOS“辅助功能”权限\"\n"
            "  text \"Orvane 仅在你启用固定 Dock 或防止 Dock "
            "弹出时使用此权限，用于检测鼠标是否移到屏幕边缘，并阻止 Dock 意外弹出。\"\n"
            "  text \"不会访问键盘输入、屏幕内容或文件，也不会收集、记录或上传个人数据。"
            "你可以暂不启用，并随时在系统设置中关闭此权限。\"\n"
            "  button \"取消\"\n"
            "  button \"打开隐私设置\"\n");
}

TEST_F(OrvaneAccessibilityPermissionAlertViewTest, WithoutAnIconASymbolOfTheSameSizeReplacesIt) {
  check('a');
  const ui::Rect button = frameOf("Not Now", "alert");
  press("Not Now", "alert");
  machine.advance(1);
  server().resources().images.remove("AppIcon");
  machine.appearance.accent = desk::Appearance::Accent{51, 102, 204};
  check('a');
  EXPECT_EQ(drawn("symbol dock.rectangle 44/600 rgba(0.2 0.4 0.8 1) (", "alert"), 1);
  EXPECT_EQ(frameOf("Not Now", "alert"), button);
}

}  // namespace
}  // namespace orvane
