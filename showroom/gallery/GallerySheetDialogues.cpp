// The permission's alert and guide, and their buttons.
#include "Orvane/permission/OrvaneAccessibilityPermissionAlertView.hpp"
#include "Orvane/permission/OrvaneDraggableAppIconView.hpp"
#include "Orvane/permission/OrvanePermissionGuideView.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::showroom {

namespace {

using ui::View;

GallerySheet alertSheet() {
  return {.name = "permission-alert",
          .title = "OrvaneAccessibilityPermissionAlertView",
          .background = GallerySheet::Background::dialogue,
          .columns = 1,
          .items = {{"the alert", [](OrvaneLanguage) {
                       return View(OrvaneAccessibilityPermissionAlertView{.onOpenSettings = [] {},
                                                                          .onCancel = [] {}});
                     }}}};
}

GallerySheet guideSheet() {
  const auto item = [](const std::string& caption, PermissionGuideState state) {
    return GalleryItem{caption, [state](OrvaneLanguage) {
                         return View(OrvanePermissionGuideView{.state = state, .onClose = [] {}});
                       }};
  };
  return {.name = "permission-guide",
          .title = "OrvanePermissionGuideView",
          .background = GallerySheet::Background::dialogue,
          .columns = 3,
          .items = {item("looking", PermissionGuideState::checking),
                    item("not seen for a while", PermissionGuideState::timeout),
                    item("granted", PermissionGuideState::success)}};
}

GallerySheet draggableIconSheet() {
  return {.name = "draggable-app-icon",
          .title = "OrvaneDraggableAppIconView",
          .background = GallerySheet::Background::dialogue,
          .hasTexts = false,
          .items = {{"the icon", [](OrvaneLanguage) {
                       return View(OrvaneDraggableAppIconView{}).frame(82, 82);
                     }}}};
}

GalleryItem bezelItem(const std::string& caption, bool isDefault,
                      Interaction interaction = Interaction::none, bool isDisabled = false) {
  return {
      caption,
      [=](OrvaneLanguage language) {
        const View button =
            ui::Button([] {}, ui::Text(language.localized("Open Privacy Settings", "打开隐私设置")))
                .disabled(isDisabled);
        return isDefault ? button.keyboardShortcut(ui::KeyboardShortcut::defaultAction()) : button;
      },
      interaction};
}

GallerySheet bezelSheet() {
  return {
      .name = "bordered-button",
      .title = "BorderedButtonStyle",
      .background = GallerySheet::Background::dialogue,
      .columns = 7,
      .items = {bezelItem("normal", false), bezelItem("pressed", false, Interaction::pressed),
                bezelItem("focused", false, Interaction::focused),
                bezelItem("disabled", false, Interaction::none, true), bezelItem("default", true),
                bezelItem("default, pressed", true, Interaction::pressed),
                bezelItem("default, disabled", true, Interaction::none, true)}};
}

}  // namespace

std::vector<GallerySheet> dialogueSheets() {
  return {alertSheet(), guideSheet(), draggableIconSheet(), bezelSheet()};
}

}  // namespace orvane::showroom
