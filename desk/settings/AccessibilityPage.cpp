// Each application has a row, which selects it, and a switch; the last row has the buttons Add and
// Remove.
#include "desk/settings/AccessibilityPage.hpp"

#include <string>
#include <vector>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/settings/SettingsControls.hpp"
#include "desk/settings/SystemSettings.hpp"

namespace orvane::desk {

using namespace ui;

namespace {

View smallButton(const std::string& symbol, const std::string& label,
                 const std::function<void()>& action, bool isEnabled) {
  const View drawing = Symbol(symbol)
                           .font(Font::system(11, Weight::semibold))
                           .frame(26, 24)
                           .opacity(isEnabled ? 1 : 0.35);
  return Button(action, drawing)
      .style(BareButtonStyle{})
      .accessibilityLabel(label)
      .disabled(!isEnabled);
}

View row(SystemSettings& settings, const AccessibilityList::Entry& entry) {
  constexpr double rowHeight = 40;
  const bool isSelected = settings.state().selected == entry.name;
  const View label =
      HStack(8, {applicationIcon(entry.name, 28), Text(entry.name).lineLimit(1), Spacer()})
          .padding(Edges{.leading = 10})
          .height(rowHeight);
  const View selecting =
      Button([&settings, name = entry.name] { settings.select(name); }, label)
          .style(BareButtonStyle{})
          .accessibilityRole(Role::radioButton)
          .accessibilityLabel(settings.language().text("Select ", "选择 ") + entry.name)
          .accessibilitySelected(isSelected);
  const View allowing = settingsSwitch(entry.name, entry.isAllowed, [&settings, entry] {
                          settings.setAllowed(entry.name, !entry.isAllowed);
                        }).padding(Edges::horizontal(10));
  const View highlight =
      Rectangle().fill(isSelected ? Color::primary().opacity(0.1) : Color::clear());
  return HStack(0, {selecting, allowing}).background(highlight).id(entry.name);
}

View buttons(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  const bool hasSelection = !settings.state().selected.empty();
  const View line = Rectangle().fill(Color::tertiary()).frame(1, 14).accessibilityHidden();
  return HStack(0, {smallButton(
                        "plus", language.text("Add", "添加"),
                        [&settings] { settings.beginChoosing(); }, true),
                    line,
                    smallButton(
                        "minus", language.text("Remove", "移除"),
                        [&settings] { settings.removeSelected(); }, hasSelection),
                    Spacer()})
      .padding(Edges::horizontal(4))
      .height(28);
}

}  // namespace

std::string accessibilityListLabel(const SystemLanguage& language) {
  return language.text("Applications", "应用程序");
}

View makeAccessibilityPage(SystemSettings& settings) {
  const SystemLanguage language = settings.language();
  std::vector<View> rows;
  for (const AccessibilityList::Entry& entry : settings.applications().entries()) {
    rows.push_back(row(settings, entry));
  }
  rows.push_back(buttons(settings));
  const View explanation =
      Text(language.text("Allow the applications below to control your computer.",
                         "允许以下应用程序控制你的电脑。"))
          .padding(Edges{.leading = 2, .bottom = 10});
  const View list = settingsGroup(rows, 46, settings.state().isDragOver)
                        .accessibilityLabel(accessibilityListLabel(language));
  return titledPage(settings, language.text("Accessibility", "辅助功能"),
                    VStack(0, HorizontalAlignment::leading, {explanation, list}));
}

}  // namespace orvane::desk
