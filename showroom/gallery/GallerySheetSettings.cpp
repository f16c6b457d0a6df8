// The cards and pickers of the settings panel.
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
                        Interaction interaction = Interaction::none) {
  return {
      caption,
      [=](OrvaneLanguage language) {
        const std::string title = language.localized("Language", "语言");
        const View picker = ui::Picker{title, {"English"}, 0, [](int) {}};
        return View(SettingsSection{
                        .systemImage = symbol,
                        .title = title,
                        .tint = tint,
                        .backgroundTint = tint.opacity(0.05),
                        .content = ui::HStack(
                            8, {ui::Text(language.localized("Use Orvane in", "Orvane 使用语言")),
                                ui::Spacer(), picker.width(160)})})
            .width(384);
      },
      interaction};
}

GallerySheet sectionSheet() {
  return {.name = "settings-section",
          .title = "SettingsSection",
          .background = GallerySheet::Background::settings,
          .columns = 3,
          .items = {sectionItem("normal", "globe", SettingsPalette::blue()),
                    sectionItem("hovered", "globe", SettingsPalette::blue(), Interaction::hovered),
                    sectionItem("indigo", "keyboard", SettingsPalette::indigo()),
                    sectionItem("mint", "hand.raised", SettingsPalette::mint()),
                    sectionItem("sky", "lifepreserver", SettingsPalette::sky())}};
}

GalleryItem pickerItem(const std::string& caption, int selectedIndex,
                       Interaction interaction = Interaction::none, bool isDisabled = false) {
  return {caption,
          [=](OrvaneLanguage language) {
            return View(ui::Picker{language.localized("Language", "语言"),
                                   {language.localized("Follow System", "跟随系统"), "English",
                                    "简体中文"},
                                   selectedIndex,
                                   [](int) {}})
                .disabled(isDisabled);
          },
          interaction};
}

GallerySheet pickerSheet() {
  return {.name = "picker",
          .title = "Picker",
          .background = GallerySheet::Background::settings,
          .columns = 5,
          .items = {pickerItem("the first", 0), pickerItem("another", 1),
                    pickerItem("pressed", 0, Interaction::pressed),
                    pickerItem("focused", 0, Interaction::focused),
                    pickerItem("disabled", 0, Interaction::none, true)}};
}

}  // namespace

std::vector<GallerySheet> settingsSheets() {
  return {sectionSheet(), pickerSheet()};
}

}  // namespace orvane::showroom
