// Items of the status bar with NSStatusItem.
#include "Orvane/platform/appkit/StatusItem.hpp"

#import <AppKit/AppKit.h>

#include "macos/appkit/ImageImplementation.hpp"
#include "macos/appkit/MenuImplementation.hpp"
#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {
namespace {

/// Whether the application is quitting. Removing an item, as its destruction does, makes the system
/// forget the position that the user chose; when the process ends, the item disappears with it
/// and its position is kept.
bool& isQuitting() {
  static bool quitting = false;
  return quitting;
}

void noteQuitting() {
  static const id<NSObject> observer =
      [NSNotificationCenter.defaultCenter addObserverForName:NSApplicationWillTerminateNotification
                                                      object:nil
                                                       queue:nil
                                                  usingBlock:^(NSNotification*) {
                                                    isQuitting() = true;
                                                  }];
  (void)observer;
}

}  // namespace

struct StatusItem::Implementation {
  Implementation()
      : item([NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength]) {
    noteQuitting();
    item.button.target = nil;
    item.button.action = nil;
  }
  Implementation(const Implementation&) = delete;
  Implementation& operator=(const Implementation&) = delete;
  ~Implementation() {
    if (isQuitting()) {
      // Leaked on purpose, so that the item is not removed.
      (void)(__bridge_retained void*)item;
    } else {
      [NSStatusBar.systemStatusBar removeStatusItem:item];
    }
  }

  NSStatusItem* item;
  // The item retains the menu, but not the menu's delegate.
  std::shared_ptr<Menu::Implementation> menu;
};

StatusItem::StatusItem() : implementation_(std::make_unique<Implementation>()) {}
StatusItem::StatusItem(StatusItem&&) noexcept = default;
StatusItem& StatusItem::operator=(StatusItem&&) noexcept = default;
StatusItem::~StatusItem() = default;

void StatusItem::setSquareLength() {
  implementation_->item.length = NSSquareStatusItemLength;
}

void StatusItem::setImagePosition(ImagePosition position) {
  implementation_->item.button.imagePosition = static_cast<NSCellImagePosition>(position);
}

void StatusItem::setImageScaling(ImageScaling scaling) {
  implementation_->item.button.imageScaling = static_cast<NSImageScaling>(scaling);
}

void StatusItem::setImage(const std::optional<Image>& image) {
  implementation_->item.button.image = image ? image->implementation()->image : nil;
}

void StatusItem::setAccessibilityValue(std::string_view value) {
  NSStatusBarButton* const button = implementation_->item.button;
  NSString* const text = foundationString(value);
  if (![text isEqual:button.accessibilityValue]) {
    button.accessibilityValue = text;
    NSAccessibilityPostNotification(button, NSAccessibilityValueChangedNotification);
  }
}

void StatusItem::setMenu(const Menu& menu) {
  implementation_->menu = menu.implementation();
  implementation_->menu->delegate->_button = implementation_->item.button;
  implementation_->item.menu = menu.implementation()->menu;
}

void StatusItem::setAutosaveName(std::string_view name) {
  implementation_->item.autosaveName = foundationString(name);
}

}  // namespace orvane::appkit
