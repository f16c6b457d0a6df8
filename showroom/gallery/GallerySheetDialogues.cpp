// What asks for the permission, with its buttons.
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
          .ground = GallerySheet::Ground::dialogue,
          .columns = 1,
          .items = {{"the alert", [](OrvaneLanguage) {
                       return View(OrvaneAccessibilityPermissionAlertView{[] {}, [] {}});
                     }}}};
}

GallerySheet guideSheet() {
  const auto item = [](const std::string& caption, PermissionGuideState state) {
    return GalleryItem{caption, [state](OrvaneLanguage) {
                         return View(OrvanePermissionGuideView{state, [] {}});
                       }};
  };
  return {.name = "permission-guide",
          .title = "OrvanePermissionGuideView",
          .ground = GallerySheet::Ground::dialogue,
          .columns = 3,
          .items = {item("looking", PermissionGuideState::checking),
                    item("not seen for a while", PermissionGuideState::timeout),
                    item("granted", PermissionGuideState::success)}};
}

GallerySheet draggableIconSheet() {
  return {.name = "draggable-app-icon",
          .title = "OrvaneDraggableAppIconView",
          .ground = GallerySheet::Ground::dialogue,
          .hasTexts = false,
          .items = {{"the icon", [](OrvaneLanguage) {
                       return View(OrvaneDraggableAppIconView{}).frame(82, 82);
                     }}}};
}

GalleryItem bezelItem(const std::string& caption, bool isDefault, Hand hand = Hand::away,
                      bool isDisabled = false) {
  return {
      caption,
      [=](OrvaneLanguage language) {
        const View button =
            ui::Button([] {}, ui::Text(language.localized("Open Privacy Settings", "打开隐私设置")))
                .disabled(isDisabled);
        return isDefault ? button.keyboardShortcut(ui::KeyboardShortcut::defaultAction()) : button;
      },
      hand};
}

GallerySheet bezelSheet() {
  return {.name = "bordered-button",
          .title = "BorderedButtonStyle",
          .ground = GallerySheet::Ground::dialogue,
          .columns = 7,
          .items = {bezelItem("normal", false), bezelItem("pressed", false, Hand::pressing),
                    bezelItem("focused", false, Hand::tabbing),
                    bezelItem("disabled", false, Hand::away, true), bezelItem("default", true),
                    bezelItem("default, pressed", true, Hand::pressing),
                    bezelItem("default, disabled", true, Hand::away, true)}};
}

}  // namespace

std::vector<GallerySheet> dialogueSheets() {
  return {alertSheet(), guideSheet(), draggableIconSheet(), bezelSheet()};
}

}  // namespace orvane::showroom
