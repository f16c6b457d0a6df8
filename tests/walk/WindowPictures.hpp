// Pictures of the application's own windows and menu rows. The views draw them themselves, so no
// permission to record the screen is needed.
#pragma once

#import <AppKit/AppKit.h>

/// Main thread only. Besides the pictures, writes layout.txt, a list of all texts and their frames.
@interface OrvaneWindowPictures : NSObject

- (nonnull instancetype)initWithFolder:(nonnull NSString*)folder;

/// Takes a picture of the visible window whose identifier has this suffix; a missing window is a
/// failure.
- (void)takeWindow:(nonnull NSString*)identifier as:(nonnull NSString*)name;
/// Takes a picture of each view in the menu.
- (void)takeMenu:(nonnull NSMenu*)menu as:(nonnull NSString*)name;
/// Prints and counts a failure.
- (void)fail:(nonnull NSString*)text;

@property(readonly) NSInteger pictureCount;
@property(readonly) NSInteger failureCount;

@end
