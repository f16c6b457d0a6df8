// The sidebar stands on the window's glass, the page on the window's own background.
#include "desk/settings/SystemSettingsView.hpp"

#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "desk/settings/AccessibilityPage.hpp"
#include "desk/settings/ApplicationChooser.hpp"
#include "desk/settings/SettingsPages.hpp"
#include "desk/settings/SettingsSidebar.hpp"
#include "desk/settings/SystemSettings.hpp"

namespace orvane::desk {

using namespace ui;

View SystemSettingsView::page() const {
  switch (settings->state().page) {
    case SettingsPage::general:
      return generalPage(*settings);
    case SettingsPage::displays:
      return displaysPage(*settings);
    case SettingsPage::desktopAndDock:
      return desktopAndDockPage(*settings);
    case SettingsPage::privacy:
      return privacyPage(*settings);
    case SettingsPage::accessibility:
      break;
  }
  return AccessibilityPage{settings};
}

View SystemSettingsView::body(const Environment& environment) const {
  const bool isChoosing = settings->state().isChoosing;
  const Color edge =
      environment.isDark() ? Color::black().opacity(0.5) : Color::black().opacity(0.1);
  const View detail =
      page()
          .frame(
              {.maximumWidth = infinity, .maximumHeight = infinity, .alignment = Alignment::top()})
          .background(Rectangle().fill(Color::windowBackground()));
  const View content =
      HStack(0, {SettingsSidebar{settings}, Rectangle().fill(edge).width(1), detail})
          .disabled(isChoosing);
  return ZStack(Alignment::top(),
                {content, when(isChoosing, [&] { return ApplicationChooser{settings}; })})
      .frame(SystemSettings::width, SystemSettings::height);
}

}  // namespace orvane::desk
