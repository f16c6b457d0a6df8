// The sidebar is drawn on the window's glass, the page on the window's background.
#include "desk/settings/SystemSettingsView.hpp"

#include <string>
#include <vector>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/settings/SettingsControls.hpp"
#include "desk/settings/SystemSettings.hpp"

namespace orvane::desk {

using namespace ui;

namespace {

/// The sheet in which the user chooses an application for the Accessibility list. Return opens,
/// Escape cancels.
struct ApplicationChooser {
  SystemSettings* settings;

  View body(const Environment& environment) const {
    const SystemLanguage language = settings->language();
    std::vector<View> rows;
    for (const std::string& name : settings->applications().applicationsNotListed()) {
      rows.push_back(row(name));
    }
    const bool isEmpty = rows.empty();
    const std::string title =
        isEmpty ? language.text("All applications are in the list already.",
                                "所有应用程序都已在列表中。")
                : language.text("Choose an application to add.", "选取要添加的应用程序。");
    const View cancel = Button(language.text("Cancel", "取消"), [settings = settings] {
                          settings->endChoosing(false);
                        }).keyboardShortcut(KeyboardShortcut::cancelAction());
    const View open = Button(language.text("Open", "打开"),
                             [settings = settings] { settings->endChoosing(true); })
                          .keyboardShortcut(KeyboardShortcut::defaultAction())
                          .disabled(settings->state().chosen.empty());
    const Color rim =
        environment.isDark() ? Color::white().opacity(0.15) : Color::black().opacity(0.12);
    const View card =
        VStack(14, HorizontalAlignment::leading,
               {Text(title).font(Font::headline()).accessibilityRole(Role::heading),
                when(!isEmpty, [&] { return settingsGroup(rows, 42); }),
                HStack(8, {Spacer(), cancel, open})})
            .padding(20)
            .width(320)
            .background(
                RoundedRectangle(10)
                    .castShadow({.color = Color::black().opacity(0.3), .radius = 24, .y = 10})
                    .fill(Color::windowBackground())
                    .strokeBorder(rim, 0.5))
            .padding({.top = 70});
    const View veil = Rectangle().fill(Color::black().opacity(environment.isDark() ? 0.35 : 0.15));
    return ZStack(Alignment::top(), {veil, card});
  }

 private:
  [[nodiscard]] View row(const std::string& name) const {
    const bool isChosen = settings->state().chosen == name;
    const View label =
        HStack(8, {applicationIcon(name, 24),
                   Text(name).foreground(isChosen ? Color::white() : Color::primary()).lineLimit(1),
                   Spacer()})
            .padding(Edges::horizontal(10))
            .height(32)
            .background(
                RoundedRectangle(5).fill(isChosen ? Color::accent() : Color::clear()).padding(2));
    return Button([settings = settings, name] { settings->choose(name); }, label)
        .style(BareButtonStyle{})
        .accessibilityLabel(name)
        .accessibilityRole(Role::radioButton)
        .accessibilitySelected(isChosen);
  }
};

}  // namespace

View SystemSettingsView::body(const Environment& environment) const {
  constexpr double sidebarWidth = 215;
  const bool isChoosing = settings->state().isChoosing;
  const Color edge =
      environment.isDark() ? Color::black().opacity(0.5) : Color::black().opacity(0.1);
  const View sidebar = settings->sidebarView().frame(
      {.width = sidebarWidth, .maximumHeight = infinity, .alignment = Alignment::top()});
  const View detail =
      settings->pageView()
          .frame(
              {.maximumWidth = infinity, .maximumHeight = infinity, .alignment = Alignment::top()})
          .background(Rectangle().fill(Color::windowBackground()));
  const View content =
      HStack(0, {sidebar, Rectangle().fill(edge).width(1), detail}).disabled(isChoosing);
  return ZStack(Alignment::top(),
                {content, when(isChoosing, [&] { return ApplicationChooser{settings}; })})
      .frame(SystemSettings::width, SystemSettings::height);
}

}  // namespace orvane::desk
