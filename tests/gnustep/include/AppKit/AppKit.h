// GNUstep's AppKit, and declarations of what the application uses beyond it, which the shim
// implements.
#pragma once

#import <Foundation/Foundation.h>

// One of GNUstep's instance variables has a keyword as its name.
#define template gnustepTemplate
#include_next <AppKit/AppKit.h>
#undef template

using NSDeviceDescriptionKey = NSString*;
using NSAccessibilityRole = NSString*;
using NSAccessibilitySubrole = NSString*;
using NSWindowLevel = NSInteger;
using NSImageResizingMode = NSInteger;
using NSWindowTitleVisibility = NSInteger;
constexpr NSImageResizingMode NSImageResizingModeStretch = 1;
constexpr NSWindowTitleVisibility NSWindowTitleVisible = 0;
constexpr NSWindowTitleVisibility NSWindowTitleHidden = 1;
constexpr auto NSVisualEffectMaterialHUDWindow = static_cast<NSVisualEffectMaterial>(13);
constexpr auto NSBitmapImageFileTypePNG = NSPNGFileType;

extern "C" {
extern NSString* const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;
extern NSString* const kCACornerCurveCircular;
extern NSString* const kCACornerCurveContinuous;
extern NSString* const kCAContentsFormatRGBA16Float;
NSRect NSAccessibilityFrameInView(NSView* view, NSRect frame);
}

// Properties that GNUstep declares as methods only.
@interface NSWindow (OrvaneShimProperties)
@property(readonly, getter=isVisible) BOOL visible;
@property(readonly, getter=isKeyWindow) BOOL keyWindow;
@property(readonly, getter=isMiniaturized) BOOL miniaturized;
@property(getter=isOpaque) BOOL opaque;
@property(getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property(getter=isMovableByWindowBackground) BOOL movableByWindowBackground;
@end
@interface NSPanel (OrvaneShimProperties)
@property(getter=isFloatingPanel) BOOL floatingPanel;
@end
@interface NSApplication (OrvaneShimProperties)
@property(retain) NSAppearance* appearance;
@end
@interface NSEvent (OrvaneShimProperties)
@property(readonly, getter=isARepeat) BOOL ARepeat;
@end
@interface NSMenuItem (OrvaneShimProperties)
@property(getter=isEnabled) BOOL enabled;
@end
@interface NSRunningApplication (OrvaneShimProperties)
@property(readonly, getter=isTerminated) BOOL terminated;
@end

// Declarations that GNUstep lacks.
@class NSStatusBarButton;

@interface NSAppearance (OrvaneShim)
+ (NSAppearance*)currentDrawingAppearance;
- (void)performAsCurrentDrawingAppearance:(void (^)(void))block;
@end

@interface NSApplication (OrvaneShim)
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (void)activate;
- (void)yieldActivationToApplication:(NSRunningApplication*)application;
@end

@interface NSWindow (OrvaneShim)
@property(copy) NSString* identifier;
@property NSWindowTitleVisibility titleVisibility;
@property BOOL titlebarAppearsTransparent;
@property BOOL preventsApplicationTerminationWhenModal;
- (void)performWindowDragWithEvent:(NSEvent*)event;
@end

@interface CALayer : NSObject
@property CGFloat cornerRadius;
@property(copy) NSString* cornerCurve;
@property(copy) NSString* contentsFormat;
@property BOOL masksToBounds;
@end

@interface CADisplayLink : NSObject
- (void)addToRunLoop:(NSRunLoop*)loop forMode:(NSString*)mode;
- (void)invalidate;
@end

@interface NSDraggingItem : NSObject
- (instancetype)initWithPasteboardWriter:(id)writer;
- (void)setDraggingFrame:(NSRect)frame contents:(id)contents;
@end

@interface NSDraggingSession : NSObject
@end

@protocol NSViewToolTipOwner <NSObject>
- (NSString*)view:(NSView*)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void*)data;
@end

@interface NSView (OrvaneShim)
@property BOOL wantsLayer;
@property(readonly) CALayer* layer;
@property BOOL clipsToBounds;
@property(readonly) NSEdgeInsets safeAreaInsets;
@property(readonly) NSRect safeAreaRect;
@property(readonly, copy) NSArray* trackingAreas;
- (void)addTrackingArea:(NSTrackingArea*)area;
- (void)removeTrackingArea:(NSTrackingArea*)area;
- (void)updateTrackingAreas;
- (void)viewDidChangeEffectiveAppearance;
- (void)viewDidChangeBackingProperties;
- (CADisplayLink*)displayLinkWithTarget:(id)target selector:(SEL)selector;
- (NSDraggingSession*)beginDraggingSessionWithItems:(NSArray*)items
                                              event:(NSEvent*)event
                                             source:(id<NSDraggingSource>)source;
- (id)accessibilityHitTest:(NSPoint)point;
- (id)accessibilityFocusedUIElement;
@property(readonly) BOOL isAccessibilityElement;
@end

@interface NSView (OrvaneShimMenu)
@property(readonly) NSMenuItem* enclosingMenuItem;
@end

@interface NSEvent (OrvaneShim)
@property(readonly) BOOL hasPreciseScrollingDeltas;
@property(readonly) CGFloat scrollingDeltaX;
@property(readonly) CGFloat scrollingDeltaY;
@end

@interface NSButton (OrvaneShim)
@property(retain) id accessibilityValue;
@property NSImageScaling imageScaling;
@end

@interface NSMenuItem (OrvaneShim)
@property(retain) NSView* view;
@end

@interface NSMenu (OrvaneShim)
@property CGFloat minimumWidth;
- (void)cancelTracking;
- (void)cancelTrackingWithoutAnimation;
@end

@interface NSStatusItem (OrvaneShim)
@property(readonly) NSStatusBarButton* button;
@property(copy) NSString* autosaveName;
@end

@interface NSScreen (OrvaneShim)
@property(readonly) NSString* localizedName;
@property(readonly) NSInteger maximumFramesPerSecond;
@end

@interface NSWorkspaceOpenConfiguration : NSObject
+ (instancetype)configuration;
@property BOOL promptsUserIfNeeded;
@end

@interface NSWorkspace (OrvaneShim)
@property(readonly) BOOL accessibilityDisplayShouldIncreaseContrast;
@property(readonly) BOOL accessibilityDisplayShouldReduceMotion;
@property(readonly, getter=isVoiceOverEnabled) BOOL voiceOverEnabled;
- (void)openURL:(NSURL*)url
        configuration:(NSWorkspaceOpenConfiguration*)configuration
    completionHandler:(void (^)(NSRunningApplication* application, NSError* error))handler;
@end

@interface NSColor (OrvaneShim)
+ (NSColor*)controlAccentColor;
@end

@interface NSColorSpace (OrvaneShim)
+ (NSColorSpace*)sRGBColorSpace;
@end

@interface NSFont (OrvaneShim)
+ (NSFont*)systemFontOfSize:(CGFloat)size weight:(CGFloat)weight;
@end

@interface NSImageSymbolConfiguration : NSObject
+ (instancetype)configurationWithPointSize:(CGFloat)size weight:(CGFloat)weight;
+ (instancetype)configurationPreferringMonochrome;
- (instancetype)configurationByApplyingConfiguration:(NSImageSymbolConfiguration*)other;
@end

@interface NSImage (OrvaneShim)
+ (NSImage*)imageWithSystemSymbolName:(NSString*)name
             accessibilityDescription:(NSString*)description;
- (NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration;
+ (NSImage*)imageWithSize:(NSSize)size
                  flipped:(BOOL)flipped
           drawingHandler:(BOOL (^)(NSRect rect))handler;
@property NSEdgeInsets capInsets;
@property NSImageResizingMode resizingMode;
@property(copy) NSString* accessibilityDescription;
@end

@interface NSAccessibilityElement (OrvaneShim)
@property(copy) NSString* accessibilityRole;
@property(copy) NSString* accessibilitySubrole;
@property(copy) NSString* accessibilityLabel;
@property(retain) id accessibilityValue;
@property(getter=isAccessibilityEnabled) BOOL accessibilityEnabled;
@property(getter=isAccessibilitySelected) BOOL accessibilitySelected;
@property(weak) id accessibilityParent;
@property(copy) NSArray* accessibilityChildren;
@property(readonly) NSRect accessibilityFrame;
- (BOOL)isAccessibilitySelectorAllowed:(SEL)selector;
@end
