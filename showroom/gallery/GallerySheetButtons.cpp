// The button styles of both panels.
#include "Orvane/panels/main/PrimaryActionButtonStyle.hpp"
#include "Orvane/panels/main/SecondaryActionButtonStyle.hpp"
#include "Orvane/panels/main/TitleBarIconButtonStyle.hpp"
#include "Orvane/panels/settings/SettingsIconButtonStyle.hpp"
#include "Orvane/panels/settings/SettingsSecondaryButtonStyle.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::showroom {

namespace {

using ui::Color;
using ui::Font;
using ui::View;
using ui::Weight;

/// Makes a button's label in a language.
using Label = std::function<View(OrvaneLanguage)>;

Label labelled(const std::string& symbol, const std::string& english, const std::string& chinese) {
  return [=](OrvaneLanguage language) {
    return ui::HStack(
        7, {ui::Symbol(symbol), ui::Text(language.localized(english, chinese)).lineLimit(1)});
  };
}

struct Styled {
  ui::ButtonStyle style;
  ui::Shape ring;
  /// In points; none if the label determines it.
  std::optional<double> width;
};

GalleryItem buttonItem(const std::string& caption, const Styled& styled, const Label& label,
                       Interaction interaction = Interaction::none, bool isDisabled = false) {
  return {caption,
          [=](OrvaneLanguage language) {
            const View button = ui::Button([] {}, label(language))
                                    .style(styled.style)
                                    .focusRing(styled.ring)
                                    .disabled(isDisabled);
            return styled.width ? button.width(*styled.width) : button;
          },
          interaction};
}

/// The five states of every button.
std::vector<GalleryItem> states(const Styled& styled, const Label& label) {
  return {buttonItem("normal", styled, label),
          buttonItem("hovered", styled, label, Interaction::hovered),
          buttonItem("pressed", styled, label, Interaction::pressed),
          buttonItem("focused", styled, label, Interaction::focused),
          buttonItem("disabled", styled, label, Interaction::none, true)};
}

GallerySheet primarySheet() {
  const ui::Shape ring = ui::Shape::rounded(PrimaryActionButtonStyle::cornerRadius);
  const Styled pin{PrimaryActionButtonStyle{Color::accent()}, ring, 240};
  const Styled unpin{PrimaryActionButtonStyle{Color::red()}, ring, 240};
  const Label unpinLabel = labelled("lock.open", "Unpin Dock", "解除固定 Dock");
  std::vector<GalleryItem> items = states(pin, labelled("lock", "Pin Dock", "固定 Dock"));
  items.push_back(buttonItem("in red", unpin, unpinLabel));
  items.push_back(buttonItem("in red, pressed", unpin, unpinLabel, Interaction::pressed));
  return {.name = "primary-action-button",
          .title = "PrimaryActionButtonStyle",
          .columns = 7,
          .items = std::move(items)};
}

GallerySheet secondarySheet() {
  const ui::Shape ring = ui::Shape::rounded(SecondaryActionButtonStyle::cornerRadius);
  const Styled wide{SecondaryActionButtonStyle{}, ring, 240};
  const Styled narrow{SecondaryActionButtonStyle{}, ring, 190};
  std::vector<GalleryItem> items =
      states(wide, labelled("eye.slash", "Prevent Dock Pop-Up", "防止 Dock 弹出"));
  items.push_back(buttonItem("190 wide", narrow,
                             labelled("gearshape", "Open Dock Settings", "打开 Dock 设置")));
  return {.name = "secondary-action-button",
          .title = "SecondaryActionButtonStyle",
          .columns = 6,
          .items = std::move(items)};
}

GallerySheet titleBarSheet() {
  const Styled styled{TitleBarIconButtonStyle{}, ui::Shape::rounded(10), std::nullopt};
  return {.name = "title-bar-icon-button",
          .title = "TitleBarIconButtonStyle",
          .background = GallerySheet::Background::window,
          .hasTexts = false,
          .items = states(styled, [](OrvaneLanguage) {
            return ui::Symbol("gearshape").font(Font::system(18, Weight::semibold)).frame(34, 34);
          })};
}

GallerySheet settingsSheet() {
  const Styled styled{SettingsSecondaryButtonStyle{},
                      ui::Shape::rounded(SettingsSecondaryButtonStyle::cornerRadius), std::nullopt};
  return {.name = "settings-secondary-button",
          .title = "SettingsSecondaryButtonStyle",
          .background = GallerySheet::Background::settings,
          .items = states(styled, labelled("lock.shield", "Privacy Policy", "隐私政策"))};
}

GallerySheet settingsIconSheet() {
  const Styled styled{SettingsIconButtonStyle{}, ui::Shape::circle(), std::nullopt};
  return {.name = "settings-icon-button",
          .title = "SettingsIconButtonStyle",
          .background = GallerySheet::Background::settings,
          .hasTexts = false,
          .items = states(styled, [](OrvaneLanguage) {
            return ui::Symbol("xmark").font(Font::system(12, Weight::bold)).frame(28, 28);
          })};
}

}  // namespace

std::vector<GallerySheet> buttonSheets() {
  return {primarySheet(), secondarySheet(), titleBarSheet(), settingsSheet(), settingsIconSheet()};
}

}  // namespace orvane::showroom
