// Each page shows what this simulated Mac really has, and nothing besides.
#include "desk/settings/SettingsPages.hpp"

#include <cmath>
#include <vector>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/settings/SettingsBadge.hpp"
#include "desk/settings/SettingsButtonStyle.hpp"
#include "desk/settings/SettingsGroup.hpp"
#include "desk/settings/SettingsSwitch.hpp"
#include "desk/settings/SystemSettings.hpp"
#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

using namespace ui;

namespace {

View page(const View& beforeTitle, const std::string& title, const View& content) {
  constexpr double margin = 20;
  const View heading =
      Text(title).font(Font::title3().bold()).lineLimit(1).accessibilityRole(Role::heading);
  const View titleBar = HStack(8, {beforeTitle, heading, Spacer()})
                            .padding(Edges::horizontal(margin))
                            .height(DeskWindow::tallTitleBarHeight);
  return VStack(0, HorizontalAlignment::leading,
                {titleBar, content.padding(Edges::horizontal(margin))});
}

/// One of several choices: its row carries the check mark.
View choiceRow(const std::string& title, bool isChosen, const std::function<void()>& choose) {
  const auto mark = [] {
    return Symbol("checkmark").font(Font::system(12, Weight::semibold)).foreground(Color::accent());
  };
  return Button(choose, SettingsGroup::row(title, when(isChosen, mark)))
      .style(SettingsButtonStyle{})
      .accessibilityLabel(title)
      .accessibilityRole(Role::radioButton)
      .accessibilitySelected(isChosen);
}

View caption(const std::string& text) {
  return Text(text).font(Font::headline()).padding(Edges{.leading = 2, .bottom = 8});
}

std::string sizeText(const CGRect& frame) {
  return std::to_string(std::lround(frame.size.width)) + " × " +
         std::to_string(std::lround(frame.size.height));
}

}  // namespace

View titledPage(const std::string& title, const View& content) {
  return page(View(), title, content);
}

View titledPageBelow(SystemSettings& settings, SettingsPage above, const std::string& title,
                     const View& content) {
  const View chevron = Symbol("chevron.left").font(Font::system(15, Weight::medium)).frame(20, 24);
  const View back = Button([&settings, above] { settings.goTo(above); }, chevron)
                        .style(SettingsButtonStyle{})
                        .accessibilityLabel(settings.language().text("Back", "返回"));
  return page(back, title, content);
}

View generalPage(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  const bool isDark = settings.machine().appearance.isDark;
  const auto text = [&](const char* english, const char* chinese) {
    return language.text(english, chinese);
  };
  return titledPage(
      text("General", "通用"),
      SettingsGroup{{SettingsGroup::row(text("Name", "名称"), text("Simulated Mac", "模拟的 Mac")),
                     SettingsGroup::row(text("Language", "语言"), text("English", "简体中文")),
                     SettingsGroup::row(text("Appearance", "外观"),
                                        isDark ? text("Dark", "深色") : text("Light", "浅色"))}});
}

View displaysPage(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  std::vector<View> rows;
  for (const Display& display : settings.machine().displays.all()) {
    const std::string number = std::to_string(display.number);
    const std::string name =
        display.name.empty() ? language.text("Display ", "显示器 ") + number : display.name;
    rows.push_back(SettingsGroup::row(name, sizeText(display.frame)));
  }
  if (rows.empty()) {
    rows.push_back(SettingsGroup::row(language.text("No display is attached", "未连接显示器"), ""));
  }
  return titledPage(language.text("Displays", "显示器"), SettingsGroup{rows});
}

View desktopAndDockPage(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  const Dock& dock = settings.machine().dock;
  const auto choice = [&](DockEdge edge, const char* english, const char* chinese) {
    return choiceRow(language.text(english, chinese), dock.edge() == edge,
                     [&settings, edge] { settings.setDockEdge(edge); });
  };
  const std::string autoHide =
      language.text("Automatically hide and show the Dock", "自动隐藏和显示程序坞");
  const bool hides = dock.autoHides();
  const View content = VStack(
      0, HorizontalAlignment::leading,
      {caption(language.text("Position on screen", "在屏幕上的位置")),
       SettingsGroup{{choice(DockEdge::left, "Left", "左侧"),
                      choice(DockEdge::bottom, "Bottom", "底部"),
                      choice(DockEdge::right, "Right", "右侧")}},
       View(SettingsGroup{{SettingsGroup::row(autoHide, SettingsSwitch{autoHide, hides,
                                                                       [&settings, hides] {
                                                                         settings.setDockAutoHides(
                                                                             !hides);
                                                                       }})}})
           .padding(Edge::top, 20)});
  return titledPage(language.text("Desktop & Dock", "桌面与程序坞"), content);
}

View privacyPage(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  const std::string accessibility = language.text("Accessibility", "辅助功能");
  const View chevron = Symbol("chevron.right")
                           .font(Font::system(11, Weight::semibold))
                           .foreground(Color::tertiary());
  const View label = HStack(8, {SettingsBadge{"accessibility", Color::blue(), 22},
                                Text(accessibility).lineLimit(1), Spacer(), chevron})
                         .padding(Edges::horizontal(10))
                         .height(40);
  const View row = Button([&settings] { settings.goTo(SettingsPage::accessibility); }, label)
                       .style(SettingsButtonStyle{})
                       .accessibilityLabel(accessibility);
  return titledPage(language.text("Privacy & Security", "隐私与安全性"), SettingsGroup{{row}});
}

}  // namespace orvane::desk
