// Pictures of the application's own windows and menu rows, drawn by themselves: nobody needs to be
// allowed to record the screen for them.
#pragma once

#import <AppKit/AppKit.h>

/// Main thread only. Beside the pictures it leaves a list of all texts and their places,
/// layout.txt.
@interface OrvaneWindowPictures : NSObject

- (nonnull instancetype)initWithFolder:(nonnull NSString*)folder;

/// Of the visible window whose identifier ends so; says on the error stream when there is none.
- (void)takeWindow:(nonnull NSString*)identifier as:(nonnull NSString*)name;
/// Of all the views in the menu, one below the other.
- (void)takeMenu:(nonnull NSMenu*)menu as:(nonnull NSString*)name;
/// What went wrong is counted, and so is each picture.
- (void)fail:(nonnull NSString*)text;

@property(readonly) NSInteger pictureCount;
@property(readonly) NSInteger failureCount;

@end
