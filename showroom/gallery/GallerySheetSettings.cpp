// The cards that the settings panel is built from, and what is chosen in them.
#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/panels/settings/SettingsSection.hpp"
#include "Orvane/ui/views/Picker.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::showroom {

namespace {

using ui::Color;
using ui::View;

GalleryItem sectionItem(const std::string& caption, const std::string& symbol, const Color& tint,
                        Hand hand = Hand::away) {
  return {caption,
          [=](OrvaneLanguage language) {
            const std::string title = language.localized("Language", "语言");
            const View picker = ui::Picker{title, {"English"}, 0, [](int) {}};
            return View(SettingsSection{
                            .systemImage = symbol,
                            .title = title,
                            .tint = tint,
                            .backgroundTint = tint.opacity(0.05),
                            .content = ui::HStack(
                                {ui::Text(language.localized("Use Orvane in", "Orvane 使用语言")),
                                 ui::Spacer(), picker.width(160)})})
                .width(384);
          },
          hand};
}

GallerySheet sectionSheet() {
  return {.name = "settings-section",
          .title = "SettingsSection",
          .ground = GallerySheet::Ground::settings,
          .columns = 3,
          .items = {sectionItem("normal", "globe", SettingsPalette::blue()),
                    sectionItem("hovered", "globe", SettingsPalette::blue(), Hand::over),
                    sectionItem("indigo", "keyboard", SettingsPalette::indigo()),
                    sectionItem("mint", "hand.raised", SettingsPalette::mint()),
                    sectionItem("sky", "lifepreserver", SettingsPalette::sky())}};
}

GalleryItem pickerItem(const std::string& caption, int selectedIndex, Hand hand = Hand::away,
                       bool isDisabled = false) {
  return {caption,
          [=](OrvaneLanguage language) {
            return View(ui::Picker{language.localized("Language", "语言"),
                                   {language.localized("Follow System", "跟随系统"), "English",
                                    "简体中文"},
                                   selectedIndex,
                                   [](int) {}})
                .disabled(isDisabled);
          },
          hand};
}

GallerySheet pickerSheet() {
  return {
      .name = "picker",
      .title = "Picker",
      .ground = GallerySheet::Ground::settings,
      .columns = 5,
      .items = {pickerItem("the first", 0), pickerItem("another", 1),
                pickerItem("pressed", 0, Hand::pressing), pickerItem("focused", 0, Hand::tabbing),
                pickerItem("disabled", 0, Hand::away, true)}};
}

}  // namespace

std::vector<GallerySheet> settingsSheets() {
  return {sectionSheet(), pickerSheet()};
}

}  // namespace orvane::showroom
