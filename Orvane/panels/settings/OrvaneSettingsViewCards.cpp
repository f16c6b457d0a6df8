// The four cards of the settings panel.
#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "Orvane/panels/settings/OrvaneSettingsView.hpp"
#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/panels/settings/SettingsSecondaryButtonStyle.hpp"
#include "Orvane/panels/settings/SettingsSection.hpp"
#include "Orvane/panels/settings/ShortcutText.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/Picker.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double cardSpacing = 10;
constexpr double sidePadding = 18;
constexpr double backgroundTintOpacity = 0.05;
constexpr double textToButtons = 7;
constexpr double buttonSpacing = 8;
constexpr double labelToPicker = 8;
constexpr double languagePickerWidth = 160;
constexpr double shortcutPickerWidth = 150;

/// The index of `value` in `allCases`, which must contain it.
template <typename Cases, typename Value>
int indexIn(const Cases& allCases, Value value) {
  return static_cast<int>(std::ranges::find(allCases, value) - allCases.begin());
}

View button(const std::string& symbol, const std::string& title, std::function<void()> action) {
  return Button(std::move(action), HStack(6, {Symbol(symbol), Text(title).fixedSize()}))
      .style(SettingsSecondaryButtonStyle{})
      .focusRing(Shape::rounded(SettingsSecondaryButtonStyle::cornerRadius));
}

View statement(const std::string& text) {
  return Text(text)
      .font(Font::callout())
      .foreground(SettingsPalette::statementText())
      .fixedSizeVertical();
}

/// A picker after its label.
View pickerRow(const std::string& label, const Picker& picker, double pickerWidth) {
  return HStack(
      0, {Text(label).fixedSizeVertical(), Spacer(labelToPicker), View(picker).width(pickerWidth)});
}

SettingsSection section(const std::string& symbol, const std::string& title, const Color& tint,
                        const View& content) {
  return {.systemImage = symbol,
          .title = title,
          .tint = tint,
          .backgroundTint = tint.opacity(backgroundTintOpacity),
          .content = content};
}

}  // namespace

View OrvaneSettingsView::cards() const {
  return VStack(cardSpacing, {languageCard(), shortcutCard(), privacyCard(), supportCard()})
      .padding(Edges::horizontal(sidePadding));
}

View OrvaneSettingsView::languageCard() const {
  const std::string title = model->localized("Language", "语言");
  // In the order of the cases. English has the same name in both languages, intentionally.
  const std::vector<std::string> names = {model->localized("Follow System", "跟随系统"), "English",
                                          model->localized("Chinese", "中文")};
  const Picker picker{
      .label = title,
      .items = names,
      .selectedIndex =
          indexIn(OrvaneLanguage::allCases, OrvaneLanguage::Value(model->appLanguage().value())),
      .onChoose = [model = model](int index) {
        model->setAppLanguage(OrvaneLanguage::allCases.at(static_cast<std::size_t>(index)));
      }};
  return section(
      "globe", title, SettingsPalette::blue(),
      pickerRow(model->localized("Use Orvane in", "Orvane 使用语言"), picker, languagePickerWidth));
}

View OrvaneSettingsView::shortcutCard() const {
  const std::string title = model->localized("Temporary Unlock Shortcut", "临时解锁快捷键");
  std::vector<std::string> names;
  names.reserve(OrvaneModifier::allCases.size());
  for (const OrvaneModifier modifier : OrvaneModifier::allCases) {
    names.emplace_back(shortcutText(modifier));
  }
  const Picker picker{
      .label = title,
      .items = names,
      .selectedIndex = indexIn(OrvaneModifier::allCases,
                               OrvaneModifier::Value(model->temporaryUnlockModifier().value())),
      .onChoose = [model = model](int index) {
        model->setTemporaryUnlockModifier(
            OrvaneModifier::allCases.at(static_cast<std::size_t>(index)));
      }};
  return section("keyboard", title, SettingsPalette::indigo(),
                 pickerRow(model->localized("Hold the shortcut to allow Dock temporarily",
                                            "按住快捷键时允许 Dock 临时弹出"),
                           picker, shortcutPickerWidth));
}

View OrvaneSettingsView::privacyCard() const {
  const View buttons =
      HStack(buttonSpacing,
             {button("doc.text", model->localized("Privacy Policy", "隐私政策"),
                     [model = model] { model->openPrivacyPolicy(); }),
              button("lock.shield", model->localized("Accessibility Settings", "辅助功能设置"),
                     [model = model] { model->openAccessibilitySettings(); })});
  const View text = statement(model->localized(
      "Orvane only reads display layout and mouse position on this Mac to prevent non-target "
      "displays from triggering Dock. It does not collect, upload, or share personal data",
      "Orvane 只在本机读取显示器排列和鼠标位置，用于阻止非目标显示器触发 "
      "Dock。不会收集、上传或共享个人数据"));
  return section("hand.raised", model->localized("Privacy", "隐私"), SettingsPalette::mint(),
                 VStack(textToButtons, HorizontalAlignment::leading, {text, buttons}));
}

View OrvaneSettingsView::supportCard() const {
  const View text = statement(model->localized(
      "Contact support by email if you run into display detection, permission, or locking issues",
      "遇到显示器识别、权限或锁定问题时，可以通过邮件联系支持"));
  return section("lifepreserver", model->localized("Support", "用户支持"), SettingsPalette::sky(),
                 VStack(textToButtons, HorizontalAlignment::leading,
                        {text, button("envelope", model->localized("Contact Support", "联系支持"),
                                      [model = model] { model->openSupportEmail(); })}));
}

}  // namespace orvane
