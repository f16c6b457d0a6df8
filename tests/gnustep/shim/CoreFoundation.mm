// Implements Core Foundation's objects as Objective-C objects. Without ARC.
#import <AppKit/AppKit.h>

#include <ctime>
#include <map>
#include <string>

#include "tests/gnustep/shim/World.hpp"

namespace orvane::gnustep {

World& world() {
  static World* const one = new World;
  return *one;
}

namespace {

enum Type : CFTypeID { anything = 1, string = 7, boolean = 21 };

CFPropertyListRef preference(CFStringRef application, CFStringRef key) {
  NSString* const name = [NSString stringWithFormat:@"%@/%@", (id)application, (id)key];
  const auto found = world().seenPreferences.find(name.UTF8String);
  if (found == world().seenPreferences.end()) {
    return nullptr;
  }
  if (const auto* const text = std::get_if<std::string>(&found->second)) {
    return [[NSString alloc] initWithUTF8String:text->c_str()];
  }
  return [[NSNumber alloc] initWithDouble:std::get<double>(found->second)];
}

}  // namespace
}  // namespace orvane::gnustep

using orvane::gnustep::world;

const CFBooleanRef kCFBooleanTrue = (CFBooleanRef)[[NSNumber numberWithBool:YES] retain];
const CFBooleanRef kCFBooleanFalse = (CFBooleanRef)[[NSNumber numberWithBool:NO] retain];
const CFStringRef kCFPreferencesCurrentUser = CFSTR("currentUser");
const CFStringRef kCFPreferencesAnyHost = CFSTR("anyHost");
const CFStringRef kCFPreferencesCurrentHost = CFSTR("currentHost");
const CFRunLoopMode kCFRunLoopCommonModes = (CFRunLoopMode)NSRunLoopCommonModes;

// Core Foundation does not accept null here, either.
void CFRelease(CFTypeRef object) {
  NSCAssert(object != nullptr, @"nothing to release");
  [(id)object release];
}
CFTypeID CFGetTypeID(CFTypeRef object) {
  if ([(id)object isKindOfClass:NSString.class]) {
    return orvane::gnustep::string;
  }
  // Booleans are a subclass of numbers.
  return [(id)object isKindOfClass:[(id)kCFBooleanTrue class]] ? orvane::gnustep::boolean
                                                               : orvane::gnustep::anything;
}
CFTypeID CFBooleanGetTypeID() {
  return orvane::gnustep::boolean;
}

CFTypeID CFStringGetTypeID() {
  return orvane::gnustep::string;
}
CFStringRef CFStringCreateWithCString(CFAllocatorRef, const char* text, CFStringEncoding) {
  return (CFStringRef)[[NSString alloc] initWithUTF8String:text];
}
CFIndex CFStringGetLength(CFStringRef string) {
  return static_cast<CFIndex>([(id)string length]);
}
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding) {
  return length * 3;
}
Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex size, CFStringEncoding) {
  return [(NSString*)string getCString:buffer
                             maxLength:static_cast<NSUInteger>(size)
                              encoding:NSUTF8StringEncoding];
}
CFStringRef deskConstantString(const char* text) {
  static auto* const all = new std::map<std::string, NSString*>;
  NSString*& string = (*all)[text];
  if (string == nil) {
    string = [[NSString alloc] initWithUTF8String:text];
  }
  return (CFStringRef)string;
}

Boolean CFPreferencesAppSynchronize(CFStringRef) {
  world().seenPreferences = world().storedPreferences;
  return true;
}
CFPropertyListRef CFPreferencesCopyValue(CFStringRef key, CFStringRef application, CFStringRef,
                                         CFStringRef host) {
  return [(id)host isEqual:(id)kCFPreferencesAnyHost]
             ? orvane::gnustep::preference(application, key)
             : nullptr;
}
CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application) {
  return orvane::gnustep::preference(application, key);
}

CFAbsoluteTime CFAbsoluteTimeGetCurrent() {
  return NSDate.timeIntervalSinceReferenceDate;
}
CFTimeInterval CACurrentMediaTime() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// The UUID object of a display is a string.
CFUUIDRef CGDisplayCreateUUIDFromDisplayID(std::uint32_t number) {
  for (const auto& display : world().displays) {
    if (display.number == number && !display.uuid.empty()) {
      return (CFUUIDRef)[[NSString alloc] initWithUTF8String:display.uuid.c_str()];
    }
  }
  return nullptr;
}
CFStringRef CFUUIDCreateString(CFAllocatorRef, CFUUIDRef uuid) {
  return (CFStringRef)[(id)uuid copy];
}
boolean_t CGDisplayIsMain(CGDirectDisplayID number) {
  // The screen of the X server if the test has set up no displays.
  NSNumber* const main = NSScreen.mainScreen.deviceDescription[@"NSScreenNumber"];
  return main.unsignedIntValue == number;
}
boolean_t CGDisplayIsBuiltin(CGDirectDisplayID number) {
  for (const auto& display : world().displays) {
    if (display.number == number) {
      return display.isBuiltIn;
    }
  }
  return false;
}

Boolean AXIsProcessTrusted() {
  return world().isTrusted;
}
