// The environment of the application: displays, the pointer, languages, links, the login item, and
// other copies of it, all as described by World.hpp.
#include "macos/appkit/ServiceManagement.hpp"
#include "tests/gnustep/shim/Methods.hpp"
#include "tests/gnustep/shim/World.hpp"

using orvane::gnustep::world;

@interface OrvaneShimScreen : NSScreen {
 @public
  orvane::gnustep::Display _display;
  NSRect _shownFrame;
}
@end

@implementation OrvaneShimScreen
- (instancetype)initWithDisplay:(const orvane::gnustep::Display&)display {
  // GNUstep has no initialiser for other screens than its own.
  _display = display;
  // A screen may be asked after the displays are gone.
  const CGFloat mainHeight = world().displays.front().frame.size.height;
  _shownFrame = {{display.frame.origin.x, mainHeight - CGRectGetMaxY(display.frame)},
                 display.frame.size};
  return self;
}
- (NSRect)frame {
  return _shownFrame;
}
- (NSRect)visibleFrame {
  return self.frame;
}
- (NSString*)localizedName {
  return @(_display.name.c_str());
}
- (CGFloat)backingScaleFactor {
  return 1;
}
- (CGFloat)userSpaceScaleFactor {
  return 1;
}
- (NSDictionary*)deviceDescription {
  return @{
    @"NSScreenNumber" : @(_display.number),
    @"NSDeviceBitsPerSample" : @8,
    @"NSDeviceColorSpaceName" : @"NSCalibratedRGBColorSpace",
  };
}
@end

@implementation NSScreen (OrvaneShim)
- (NSString*)localizedName {
  return @"X screen";
}
- (NSInteger)maximumFramesPerSecond {
  return 60;
}
@end

@implementation NSApplication (OrvaneShim)
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy {
  return YES;
}
- (void)activate {
  ++world().activations;
  [self activateIgnoringOtherApps:YES];
}
- (void)yieldActivationToApplication:(NSRunningApplication*)application {
  world().yieldedTo.push_back(application.processIdentifier);
}
@end

NSString* const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification =
    @"NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification";

@implementation NSWorkspace (OrvaneShim)
- (BOOL)accessibilityDisplayShouldIncreaseContrast {
  return world().increasesContrast;
}
- (BOOL)accessibilityDisplayShouldReduceMotion {
  return world().reducesMotion;
}
- (BOOL)isVoiceOverEnabled {
  return world().isVoiceOverOn;
}
- (void)openURL:(NSURL*)url
        configuration:(NSWorkspaceOpenConfiguration*)configuration
    completionHandler:(void (^)(NSRunningApplication*, NSError*))handler {
  const std::string link = url.absoluteString.UTF8String;
  const std::string& refused = world().refusedLinkPrefix;
  if (url.scheme.length > 0 && (refused.empty() || !link.starts_with(refused))) {
    world().openedLinks.push_back(link);
    dispatch_async(dispatch_get_global_queue(0, 0), ^{
      handler(NSRunningApplication.currentApplication, nil);
    });
  } else if (!configuration.promptsUserIfNeeded) {
    // Otherwise the handler would wait until the user dismisses the system's message.
    dispatch_async(dispatch_get_global_queue(0, 0), ^{
      handler(nil, [NSError errorWithDomain:NSCocoaErrorDomain code:256 userInfo:nil]);
    });
  }
}
@end

@implementation NSWorkspaceOpenConfiguration
+ (instancetype)configuration {
  NSWorkspaceOpenConfiguration* const configuration = [[self alloc] init];
  configuration.promptsUserIfNeeded = YES;
  return configuration;
}
@end

@implementation NSURL (OrvaneShim)
+ (instancetype)URLWithString:(NSString*)text encodingInvalidCharacters:(BOOL)encode {
  return [NSURL URLWithString:text];
}
@end

@implementation SMAppService

+ (SMAppService*)mainAppService {
  static SMAppService* const service = [[SMAppService alloc] init];
  return service;
}

- (SMAppServiceStatus)status {
  return static_cast<SMAppServiceStatus>(world().loginItemStatus);
}

- (BOOL)become:(SMAppServiceStatus)status error:(NSError**)error {
  if (world().loginItemError.empty()) {
    world().loginItemStatus = static_cast<int>(status);
    return YES;
  }
  *error =
      [NSError errorWithDomain:@"SMAppServiceErrorDomain"
                          code:1
                      userInfo:@{NSLocalizedDescriptionKey : @(world().loginItemError.c_str())}];
  return NO;
}

- (BOOL)registerAndReturnError:(NSError**)error {
  return [self become:SMAppServiceStatusEnabled error:error];
}

- (BOOL)unregisterAndReturnError:(NSError**)error {
  return [self become:SMAppServiceStatusNotRegistered error:error];
}

@end

@interface OrvaneShimCopy : NSRunningApplication {
 @public
  int _number;
  orvane::gnustep::Copy _copy;
}
@end

@implementation OrvaneShimCopy
- (pid_t)processIdentifier {
  return _number;
}
- (NSDate*)launchDate {
  return _copy.launchedAt ? [NSDate dateWithTimeIntervalSinceReferenceDate:*_copy.launchedAt] : nil;
}
- (BOOL)isFinishedLaunching {
  return _copy.isRunning;
}
- (BOOL)isEqual:(id)other {
  return [other isKindOfClass:OrvaneShimCopy.class] &&
         _number == static_cast<OrvaneShimCopy*>(other)->_number;
}
@end

/// Distributed notifications without a server: they reach observers in this process only.
@interface OrvaneShimDistributedCenter : NSNotificationCenter
@end

@implementation OrvaneShimDistributedCenter
- (void)postNotificationName:(NSString*)name
                      object:(NSString*)object
                    userInfo:(NSDictionary*)info
          deliverImmediately:(BOOL)isImmediate {
  world().distributedNotifications.push_back(name.UTF8String);
  [self postNotificationName:name object:object userInfo:info];
}
- (void)addObserver:(id)observer
              selector:(SEL)selector
                  name:(NSString*)name
                object:(NSString*)object
    suspensionBehavior:(NSNotificationSuspensionBehavior)behavior {
  [self addObserver:observer selector:selector name:name object:object];
}
@end

namespace orvane::gnustep {
namespace {

OrvaneShimCopy* copyWith(int number, const Copy& state) {
  OrvaneShimCopy* const copy = [[OrvaneShimCopy alloc] init];
  copy->_number = number;
  copy->_copy = state;
  return copy;
}

void installDisplays() {
  static IMP const screens =
      replaceClassMethod(NSScreen.class, @selector(screens), ^NSArray*(Class type) {
        if (world().displays.empty()) {
          return callReplaced<NSArray*>(screens, type, @selector(screens));
        }
        NSMutableArray* const all = [NSMutableArray array];
        for (const Display& display : world().displays) {
          [all addObject:[[OrvaneShimScreen alloc] initWithDisplay:display]];
        }
        return all;
      });
  replaceClassMethod(NSScreen.class, @selector(mainScreen), ^NSScreen*(Class) {
    return NSScreen.screens.firstObject;
  });
  static IMP const mouse =
      replaceClassMethod(NSEvent.class, @selector(mouseLocation), ^NSPoint(Class type) {
        if (world().displays.empty()) {
          return callReplaced<NSPoint>(mouse, type, @selector(mouseLocation));
        }
        const CGPoint& pointer = world().pointer;
        return {pointer.x, world().displays.front().frame.size.height - pointer.y};
      });
}

void installLocale() {
  static IMP const languages =
      replaceClassMethod(NSLocale.class, @selector(preferredLanguages), ^NSArray*(Class type) {
        if (world().preferredLanguages.empty()) {
          return callReplaced<NSArray*>(languages, type, @selector(preferredLanguages));
        }
        NSMutableArray* const all = [NSMutableArray array];
        for (const std::string& language : world().preferredLanguages) {
          [all addObject:@(language.c_str())];
        }
        return all;
      });
  static IMP const current =
      replaceClassMethod(NSLocale.class, @selector(autoupdatingCurrentLocale), ^id(Class type) {
        return world().localeIdentifier.empty()
                   ? callReplaced<NSLocale*>(current, type, @selector(autoupdatingCurrentLocale))
                   : [NSLocale localeWithLocaleIdentifier:@(world().localeIdentifier.c_str())];
      });
}

// GNUstep does not support resource values of volumes.
void installVolumes() {
  replaceMethod(NSURL.class, @selector(getResourceValue:forKey:error:),
                ^BOOL(NSURL*, id __autoreleasing* value, NSString* key, NSError* __autoreleasing*) {
                  if (![key isEqual:NSURLVolumeIsReadOnlyKey]) {
                    return NO;
                  }
                  *value = @(world().isBundleOnReadOnlyVolume);
                  return YES;
                });
}

// GNUstep does not list other applications.
void installCopies() {
  replaceClassMethod(NSRunningApplication.class, @selector(currentApplication), ^id(Class) {
    return copyWith(NSProcessInfo.processInfo.processIdentifier,
                    {.launchedAt = 1000, .isRunning = false});
  });
  replaceClassMethod(NSRunningApplication.class,
                     @selector(runningApplicationsWithBundleIdentifier:),
                     ^NSArray*(Class, NSString*) {
                       NSMutableArray* const all =
                           [NSMutableArray arrayWithObject:NSRunningApplication.currentApplication];
                       for (const auto& [number, copy] : world().otherCopies) {
                         [all addObject:copyWith(number, copy)];
                       }
                       return all;
                     });
  replaceClassMethod(NSDistributedNotificationCenter.class, @selector(defaultCenter), ^id(Class) {
    static OrvaneShimDistributedCenter* const center = [[OrvaneShimDistributedCenter alloc] init];
    return center;
  });
}

}  // namespace

void installSurroundings() {
  installDisplays();
  installLocale();
  installVolumes();
  installCopies();
  // GNUstep opens the files of the command line, and reports errors in a window.
  replaceMethod(NSApplication.class, @selector(presentError:), ^BOOL(id, NSError*) {
    return NO;
  });
  // GNUstep's defaults do not replace a value by an equal one of another type.
  static IMP const set = replaceMethod(
      NSUserDefaults.class, @selector(setObject:forKey:),
      ^(NSUserDefaults* defaults, id value, NSString* key) {
        [defaults removeObjectForKey:key];
        if (value != nil) {
          callReplaced<void, id, id>(set, defaults, @selector(setObject:forKey:), value, key);
        }
      });
}

}  // namespace orvane::gnustep
