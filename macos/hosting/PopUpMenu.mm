// The native pop-up menu of a picker.
#include "macos/hosting/PopUpMenu.hpp"

#include "macos/appkit/Strings.hpp"

/// Records which item was chosen.
@interface OrvanePopUpChoice : NSObject {
 @public
  NSMenuItem* _chosen;
}
- (void)choose:(NSMenuItem*)item;
@end

@implementation OrvanePopUpChoice

- (void)choose:(NSMenuItem*)item {
  _chosen = item;
}

@end

namespace orvane::appkit {

void runPopUpMenu(const ui::MenuRequest& request, NSView* view) {
  // A copy, because the callback may destroy the request.
  const auto onChoose = request.onChoose;
  OrvanePopUpChoice* const choice = [[OrvanePopUpChoice alloc] init];
  NSMenu* const menu = [[NSMenu alloc] init];
  menu.autoenablesItems = NO;
  menu.minimumWidth = request.anchor.width;
  for (const std::string& title : request.items) {
    NSString* const text = foundationString(title);
    NSMenuItem* const item = [menu addItemWithTitle:text == nil ? @"" : text
                                             action:@selector(choose:)
                                      keyEquivalent:@""];
    item.target = choice;
    item.tag = menu.numberOfItems - 1;
  }
  const bool hasSelection =
      request.selectedIndex >= 0 && request.selectedIndex < menu.numberOfItems;
  NSMenuItem* const selected = hasSelection ? [menu itemAtIndex:request.selectedIndex] : nil;
  selected.state = NSControlStateValueOn;
  const NSPoint place = NSMakePoint(request.anchor.x, request.anchor.y);
  [menu popUpMenuPositioningItem:selected atLocation:place inView:view];
  if (choice->_chosen != nil && onChoose) {
    onChoose(static_cast<int>(choice->_chosen.tag));
  }
}

}  // namespace orvane::appkit
