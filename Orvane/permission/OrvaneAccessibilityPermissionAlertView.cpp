// The alert that explains why the Accessibility permission is needed and offers to open the
// settings for it.
#include "Orvane/permission/OrvaneAccessibilityPermissionAlertView.hpp"

#include <string>
#include <string_view>

#include "Orvane/model/OrvaneLanguage.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double iconSide = 64;

View paragraph(const std::string& text) {
  return Text(text)
      .font(Font::subheadline())
      .foreground(Color::secondary())
      .textAlignment(HorizontalAlignment::center)
      .fixedSizeVertical();
}

View wideButton(const std::string& title, const std::function<void()>& action) {
  return Button(action, Text(title).maximumWidth());
}

}  // namespace

View OrvaneAccessibilityPermissionAlertView::appIcon(const Environment& environment) const {
  if (environment.hasImage("AppIcon")) {
    return Image("AppIcon").resizable().frame(iconSide, iconSide);
  }
  return Symbol("dock.rectangle")
      .font(Font::system(44, Weight::semibold))
      .foreground(Color::accent())
      .frame(iconSide, iconSide);
}

View OrvaneAccessibilityPermissionAlertView::body(const Environment& environment) const {
  const View title =
      Text(localized("Enable macOS Accessibility Permission", "需要开启 macOS“辅助功能”权限"))
          .font(Font::headline())
          .textAlignment(HorizontalAlignment::center)
          .fixedSizeVertical()
          .accessibilityRole(Role::heading);
  const View paragraphs = VStack(
      6, {paragraph(localized(
              "Orvane uses this permission only when you enable Pin Dock or Prevent Dock Pop-Up. "
              "It checks whether the pointer reaches a display edge, then prevents unintended Dock "
              "activation.",
              "Orvane 仅在你启用固定 Dock 或防止 Dock "
              "弹出时使用此权限，用于检测鼠标是否移到屏幕边缘，并阻止 Dock 意外弹出。")),
          paragraph(localized(
              "It does not access keyboard input, screen contents, or files, and does not collect, "
              "record, or upload personal data. You can skip this for now and turn it off anytime "
              "in System Settings.",
              "不会访问键盘输入、屏幕内容或文件，也不会收集、记录或上传个人数据。你可以暂不启用，"
              "并随时在系统设置中关闭此权限。"))});
  const View buttons =
      HStack(12, {wideButton(localized("Not Now", "取消"), onCancel)
                      .keyboardShortcut(KeyboardShortcut::cancelAction()),
                  wideButton(localized("Open Privacy Settings", "打开隐私设置"), onOpenSettings)
                      .keyboardShortcut(KeyboardShortcut::defaultAction())})
          .padding({.top = 4});
  return VStack(14, {appIcon(environment), title, paragraphs, buttons}).padding(24).width(width);
}

}  // namespace orvane
