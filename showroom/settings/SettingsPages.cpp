// Each page shows the state of the simulated Mac.
#include "showroom/settings/SettingsPages.hpp"

#include <string>
#include <vector>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/settings/SettingsControls.hpp"
#include "desk/windows/DeskWindow.hpp"

namespace orvane::showroom {

using namespace ui;
using desk::DeskWindow;
using desk::Display;
using desk::Dock;
using desk::DockEdge;
using desk::settingsBadge;
using desk::settingsGroup;
using desk::SettingsPage;
using desk::settingsSwitch;
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
      .style(BareButtonStyle{})
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
      settingsGroup({pageRow(text("Name", "名称"), text("Simulated Mac", "模拟的 Mac")),
                     pageRow(text("Language", "语言"), text("English", "简体中文")),
                     pageRow(text("Appearance", "外观"),
                             isDark ? text("Dark", "深色") : text("Light", "浅色"))}));
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
  return titledPage(settings, language.text("Displays", "显示器"), settingsGroup(rows));
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
       settingsGroup({choice(DockEdge::left, "Left", "左侧"),
                      choice(DockEdge::bottom, "Bottom", "底部"),
                      choice(DockEdge::right, "Right", "右侧")}),
       View(settingsGroup({pageRow(autoHide, settingsSwitch(autoHide, hides,
                                                            [&settings, hides] {
                                                              Dock::store(
                                                                  settings.machine().preferences,
                                                                  Dock::autoHideKey, !hides);
                                                            }))}))
           .padding({.top = 20})});
  return titledPage(settings, language.text("Desktop & Dock", "桌面与程序坞"), content);
}

View makePrivacyPage(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  const std::string accessibility = language.text("Accessibility", "辅助功能");
  const View chevron = Symbol("chevron.right")
                           .font(Font::system(11, Weight::semibold))
                           .foreground(Color::tertiary());
  const View label = HStack(8, {settingsBadge("accessibility", Color::blue(), 22),
                                Text(accessibility).lineLimit(1), Spacer(), chevron})
                         .padding(Edges::horizontal(10))
                         .height(40);
  const View row = Button([&settings] { settings.goTo(SystemSettings::accessibilityPage); }, label)
                       .style(BareButtonStyle{})
                       .accessibilityLabel(accessibility);
  return titledPage(settings, language.text("Privacy & Security", "隐私与安全性"),
                    settingsGroup({row}));
}

View sidebarRow(SystemSettings& settings, const std::string& page, const std::string& title,
                const std::string& symbol, const Color& color) {
  // A page with a parent is shown as its parent.
  const SettingsPage* const parent = settings.parentPage();
  const bool isSelected = page == (parent != nullptr ? parent->name : settings.state().page);
  constexpr double rowHeight = 28;
  constexpr double radius = 5;
  const View label =
      HStack(7,
             {settingsBadge(symbol, color),
              Text(title).foreground(isSelected ? Color::white() : Color::primary()).lineLimit(1),
              Spacer()})
          .padding(Edges::horizontal(8))
          .height(rowHeight)
          .background(RoundedRectangle(radius).fill(isSelected ? Color::accent() : Color::clear()));
  return Button([&settings, page] { settings.goTo(page); }, label)
      .style(BareButtonStyle{})
      .focusRing(Shape::rounded(radius))
      .accessibilityLabel(title)
      .accessibilityRole(Role::radioButton)
      .accessibilitySelected(isSelected);
}

/// The rows stay clear of the window's buttons above them.
View makeSidebar(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  const View gap = Rectangle().fill(Color::clear()).height(12);
  return VStack(0, {sidebarRow(settings, generalPage, language.text("General", "通用"),
                               "gearshape.fill", Color::gray()),
                    gap,
                    sidebarRow(settings, desktopAndDockPage,
                               language.text("Desktop & Dock", "桌面与程序坞"), "dock.rectangle",
                               Color::black()),
                    sidebarRow(settings, displaysPage, language.text("Displays", "显示器"),
                               "display", Color::blue()),
                    gap,
                    sidebarRow(settings, SystemSettings::privacyPage,
                               language.text("Privacy & Security", "隐私与安全性"), "hand.raised",
                               Color::blue())})
      .padding(Edges{.top = DeskWindow::tallTitleBarHeight + 4, .leading = 10, .trailing = 10});
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
                  makeSidebar);
  settings.goTo(generalPage);
}

}  // namespace orvane::showroom
