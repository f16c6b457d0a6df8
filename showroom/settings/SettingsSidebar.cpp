// The rows stay clear of the window's buttons above them.
#include "showroom/settings/SettingsSidebar.hpp"

#include <string>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/settings/SettingsBadge.hpp"
#include "desk/settings/SettingsButtonStyle.hpp"
#include "desk/windows/DeskWindow.hpp"
#include "showroom/settings/SettingsPages.hpp"

namespace orvane::showroom {

using namespace ui;
using desk::DeskWindow;
using desk::SettingsBadge;
using desk::SettingsButtonStyle;
using desk::SettingsPage;
using desk::SystemSettings;

namespace {

View sidebarRow(SystemSettings& settings, const std::string& page, const std::string& title,
                const std::string& symbol, const Color& color) {
  // A page with a parent is shown as its parent.
  const SettingsPage* const parent = settings.parentPage();
  const bool isSelected = page == (parent != nullptr ? parent->name : settings.state().page);
  constexpr double rowHeight = 28;
  constexpr double radius = 5;
  const View label =
      HStack(7,
             {SettingsBadge{symbol, color},
              Text(title).foreground(isSelected ? Color::white() : Color::primary()).lineLimit(1),
              Spacer()})
          .padding(Edges::horizontal(8))
          .height(rowHeight)
          .background(RoundedRectangle(radius).fill(isSelected ? Color::accent() : Color::clear()));
  return Button([&settings, page] { settings.goTo(page); }, label)
      .style(SettingsButtonStyle{})
      .focusRing(Shape::rounded(radius))
      .accessibilityLabel(title)
      .accessibilityRole(Role::radioButton)
      .accessibilitySelected(isSelected);
}

}  // namespace

View settingsSidebar(SystemSettings& settings) {
  const desk::SystemLanguage language = settings.language();
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
                    sidebarRow(settings, desk::SystemSettings::privacyPage,
                               language.text("Privacy & Security", "隐私与安全性"), "hand.raised",
                               Color::blue())})
      .padding(Edges{.top = DeskWindow::tallTitleBarHeight + 4, .leading = 10, .trailing = 10});
}

}  // namespace orvane::showroom
