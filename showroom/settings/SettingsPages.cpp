// Each page shows the state of the simulated Mac.
#include "showroom/settings/SettingsPages.hpp"

#include <string>
#include <vector>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/settings/SettingsBadge.hpp"
#include "desk/settings/SettingsButtonStyle.hpp"
#include "desk/settings/SettingsGroup.hpp"
#include "desk/settings/SettingsSwitch.hpp"
#include "desk/settings/TitledPage.hpp"
#include "showroom/settings/SettingsSidebar.hpp"

namespace orvane::showroom {

using namespace ui;
using desk::Display;
using desk::Dock;
using desk::DockEdge;
using desk::SettingsBadge;
using desk::SettingsButtonStyle;
using desk::SettingsGroup;
using desk::SettingsSwitch;
using desk::SystemLanguage;
using desk::SystemSettings;
using desk::titledPage;

namespace {

/// A title, and `end` at the end of the row.
View pageRow(const std::string& title, const View& end) {
  constexpr double rowHeight = 36;
  return HStack(8, {Text(title).lineLimit(1), Spacer(), end})
      .padding(Edges::horizontal(10))
      .height(rowHeight);
}

View pageRow(const std::string& title, const std::string& value) {
  return pageRow(title, Text(value).foreground(Color::secondary()).lineLimit(1));
}

/// One of several choices; the chosen one has a check mark.
View choiceRow(const std::string& title, bool isChosen, const std::function<void()>& choose) {
  const auto mark = [] {
    return Symbol("checkmark").font(Font::system(12, Weight::semibold)).foreground(Color::accent());
  };
  return Button(choose, pageRow(title, when(isChosen, mark)))
      .style(SettingsButtonStyle{})
      .accessibilityLabel(title)
      .accessibilityRole(Role::radioButton)
      .accessibilitySelected(isChosen);
}

View caption(const std::string& text) {
  return Text(text).font(Font::headline()).padding(Edges{.leading = 2, .bottom = 8});
}

View makeGeneralPage(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  const bool isDark = settings.machine().appearance.isDark;
  const auto text = [&](const char* english, const char* chinese) {
    return language.text(english, chinese);
  };
  return titledPage(
      settings, text("General", "通用"),
      SettingsGroup{{pageRow(text("Name", "名称"), text("Simulated Mac", "模拟的 Mac")),
                     pageRow(text("Language", "语言"), text("English", "简体中文")),
                     pageRow(text("Appearance", "外观"),
                             isDark ? text("Dark", "深色") : text("Light", "浅色"))}});
}

View makeDisplaysPage(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  std::vector<View> rows;
  for (const Display& display : settings.machine().displays.all()) {
    const std::string number = std::to_string(display.number);
    const std::string name =
        display.name.empty() ? language.text("Display ", "显示器 ") + number : display.name;
    rows.push_back(pageRow(name, display.sizeText()));
  }
  if (rows.empty()) {
    rows.push_back(pageRow(language.text("No display is attached", "未连接显示器"), ""));
  }
  return titledPage(settings, language.text("Displays", "显示器"), SettingsGroup{rows});
}

View makeDesktopAndDockPage(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  const Dock& dock = settings.machine().dock;
  const auto choice = [&](DockEdge edge, const char* english, const char* chinese) {
    return choiceRow(language.text(english, chinese), dock.edge() == edge, [&settings, edge] {
      Dock::store(settings.machine().preferences, Dock::orientationKey, std::string(nameOf(edge)));
    });
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
       View(SettingsGroup{{pageRow(autoHide, SettingsSwitch{autoHide, hides,
                                                            [&settings, hides] {
                                                              Dock::store(
                                                                  settings.machine().preferences,
                                                                  Dock::autoHideKey, !hides);
                                                            }})}})
           .padding({.top = 20})});
  return titledPage(settings, language.text("Desktop & Dock", "桌面与程序坞"), content);
}

View makePrivacyPage(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  const std::string accessibility = language.text("Accessibility", "辅助功能");
  const View chevron = Symbol("chevron.right")
                           .font(Font::system(11, Weight::semibold))
                           .foreground(Color::tertiary());
  const View label = HStack(8, {SettingsBadge{"accessibility", Color::blue(), 22},
                                Text(accessibility).lineLimit(1), Spacer(), chevron})
                         .padding(Edges::horizontal(10))
                         .height(40);
  const View row = Button([&settings] { settings.goTo(SystemSettings::accessibilityPage); }, label)
                       .style(SettingsButtonStyle{})
                       .accessibilityLabel(accessibility);
  return titledPage(settings, language.text("Privacy & Security", "隐私与安全性"),
                    SettingsGroup{{row}});
}

}  // namespace

void addSettingsPages(SystemSettings& settings) {
  settings.extend({{generalPage,
                    "",
                    {"x-apple.systempreferences:com.apple.LoginItems-Settings.extension"},
                    makeGeneralPage},
                   {displaysPage, "", {}, makeDisplaysPage},
                   {desktopAndDockPage,
                    "",
                    {"x-apple.systempreferences:com.apple.Desktop-Settings.extension",
                     "x-apple.systempreferences:com.apple.preference.dock"},
                    makeDesktopAndDockPage},
                   {SystemSettings::privacyPage,
                    "",
                    {"x-apple.systempreferences:com.apple.preference.security"},
                    makePrivacyPage}},
                  settingsSidebar);
  settings.goTo(generalPage);
}

}  // namespace orvane::showroom
