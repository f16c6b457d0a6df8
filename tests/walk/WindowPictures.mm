// Pictures of the application's own windows and menu rows.
#include "tests/walk/WindowPictures.hpp"

#include <cstdio>
#include <string>

#include "macos/appkit/NativeView.hpp"
#include "macos/appkit/NativeWindow.hpp"
#include "macos/appkit/Strings.hpp"
#include "macos/canvas/CoreTextMeasurer.hpp"
#include "macos/hosting/HostingContainer.hpp"
#include "tests/panels/TextRun.hpp"

namespace {

/// Whether the picture has more than one colour.
bool showsSomething(NSBitmapImageRep* picture) {
  NSColor* const first = [picture colorAtX:picture.pixelsWide / 2 y:picture.pixelsHigh / 2];
  constexpr NSInteger steps = 64;
  for (NSInteger row = 0; row < steps; ++row) {
    for (NSInteger column = 0; column < steps; ++column) {
      NSColor* const color = [picture colorAtX:picture.pixelsWide * column / steps
                                             y:picture.pixelsHigh * row / steps];
      if (![color isEqual:first]) {
        return true;
      }
    }
  }
  return false;
}

std::string textBoxesOf(NSWindow* window, NSString* name) {
  const auto content = orvane::appkit::windowFrom(window)->contentView();
  auto* const view = static_cast<OrvaneHostView*>(orvane::appkit::keyView(*content));
  const double top = NSHeight(view.superview.bounds) - NSMaxY(view.frame);
  orvane::appkit::CoreTextMeasurer measurer;
  return orvane::textBoxes(orvane::appkit::utf8String(name), view.host, {NSMinX(view.frame), top},
                           measurer);
}

NSBitmapImageRep* pictureOf(NSView* view) {
  [view layoutSubtreeIfNeeded];
  NSBitmapImageRep* const picture = [view bitmapImageRepForCachingDisplayInRect:view.bounds];
  if (picture != nil) {
    [view cacheDisplayInRect:view.bounds toBitmapImageRep:picture];
  }
  return picture;
}

}  // namespace

@implementation OrvaneWindowPictures {
  NSString* _folder;
  NSInteger _pictureCount;
  NSInteger _failureCount;
  std::string _textBoxes;
}

- (instancetype)initWithFolder:(NSString*)folder {
  self = [super init];
  if (self != nil) {
    _folder = [folder copy];
  }
  return self;
}

- (NSInteger)pictureCount {
  return _pictureCount;
}

- (NSInteger)failureCount {
  return _failureCount;
}

- (void)fail:(NSString*)text {
  ++_failureCount;
  std::fprintf(stderr, "%s\n", text.UTF8String);
}

- (void)save:(NSBitmapImageRep*)picture as:(NSString*)name {
  if (picture == nil || !showsSomething(picture)) {
    [self fail:[name stringByAppendingString:@": nothing was drawn"]];
    return;
  }
  NSString* const file =
      [[_folder stringByAppendingPathComponent:name] stringByAppendingPathExtension:@"png"];
  NSData* const data = [picture representationUsingType:NSBitmapImageFileTypePNG properties:@{}];
  if ([data writeToFile:file atomically:YES]) {
    ++_pictureCount;
  } else {
    [self fail:[file stringByAppendingString:@": cannot be written"]];
  }
}

- (void)takeWindow:(NSString*)identifier as:(NSString*)name {
  for (NSWindow* window in NSApplication.sharedApplication.windows) {
    if (window.visible && [window.identifier hasSuffix:identifier]) {
      [self save:pictureOf(window.contentView) as:name];
      _textBoxes += textBoxesOf(window, name);
      [orvane::appkit::foundationString(_textBoxes)
          writeToFile:[_folder stringByAppendingPathComponent:@"layout.txt"]
           atomically:YES
             encoding:NSUTF8StringEncoding
                error:nil];
      return;
    }
  }
  [self fail:[name stringByAppendingString:@": the window is not on the screen"]];
}

- (void)takeMenu:(NSMenu*)menu as:(NSString*)name {
  NSInteger row = 0;
  for (NSMenuItem* item in menu.itemArray) {
    if (item.view != nil) {
      [self save:pictureOf(item.view) as:[NSString stringWithFormat:@"%@-%02ld", name, (long)row]];
      ++row;
    }
  }
  if (row == 0) {
    [self fail:[name stringByAppendingString:@": the menu has no rows"]];
  }
}

@end
