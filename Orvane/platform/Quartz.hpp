// The C functions of the platform interface: Quartz Event Services, Core Graphics, Core Foundation,
// Accessibility and the media clock. On Apple platforms it includes the real headers. Elsewhere it
// declares those names that the application uses, and the desk implements them. So the tested code
// is, call by call and constant by constant, the code that ships.
#pragma once

#ifdef __APPLE__

#include <ApplicationServices/ApplicationServices.h>
#include <QuartzCore/CABase.h>

#else

#include <cstddef>
#include <cstdint>

extern "C" {

// Core Foundation: objects. The caller of a function with Create or Copy in its name owns the
// result and releases it with CFRelease.
using CFTypeRef = const void*;
using CFTypeID = unsigned long;
using CFIndex = long;
using Boolean = unsigned char;
using CFAllocatorRef = const struct __CFAllocator*;
using CFPropertyListRef = CFTypeRef;
constexpr CFAllocatorRef kCFAllocatorDefault = nullptr;

void CFRelease(CFTypeRef object);
CFTypeID CFGetTypeID(CFTypeRef object);

// Core Foundation: strings.
using CFStringRef = const struct __CFString*;
using CFStringEncoding = std::uint32_t;
constexpr CFStringEncoding kCFStringEncodingUTF8 = 0x08000100;

CFTypeID CFStringGetTypeID();
/// Null when `text` is not valid in the encoding.
CFStringRef CFStringCreateWithCString(CFAllocatorRef allocator, const char* text,
                                      CFStringEncoding encoding);
/// The length in UTF-16 units.
CFIndex CFStringGetLength(CFStringRef string);
/// The maximum number of bytes that `length` UTF-16 units need, without a terminating zero.
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding);
/// False when the text with its terminating zero does not fit.
Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex bufferSize,
                           CFStringEncoding encoding);
/// A constant string, never released.
CFStringRef deskConstantString(const char* text);
#define CFSTR(text) deskConstantString("" text "")

// Core Foundation: preferences.
extern const CFStringRef kCFPreferencesCurrentUser;
extern const CFStringRef kCFPreferencesAnyHost;
extern const CFStringRef kCFPreferencesCurrentHost;

Boolean CFPreferencesAppSynchronize(CFStringRef applicationID);
CFPropertyListRef CFPreferencesCopyValue(CFStringRef key, CFStringRef applicationID,
                                         CFStringRef userName, CFStringRef hostName);
CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef applicationID);

// Core Foundation: universally unique identifiers.
using CFUUIDRef = const struct __CFUUID*;
CFStringRef CFUUIDCreateString(CFAllocatorRef allocator, CFUUIDRef uuid);

// Core Foundation: time and run loops.
using CFTimeInterval = double;
using CFAbsoluteTime = CFTimeInterval;
/// Seconds since 1 January 2001, by the calendar clock.
CFAbsoluteTime CFAbsoluteTimeGetCurrent();

using CFMachPortRef = struct __CFMachPort*;
using CFRunLoopRef = struct __CFRunLoop*;
using CFRunLoopSourceRef = struct __CFRunLoopSource*;
using CFRunLoopMode = CFStringRef;
extern const CFRunLoopMode kCFRunLoopCommonModes;

CFRunLoopSourceRef CFMachPortCreateRunLoopSource(CFAllocatorRef allocator, CFMachPortRef port,
                                                 CFIndex order);
void CFMachPortInvalidate(CFMachPortRef port);
/// Borrowed: the caller does not own it.
CFRunLoopRef CFRunLoopGetCurrent();
void CFRunLoopAddSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopRemoveSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFRunLoopMode mode);

// Core Graphics: geometry, in points.
using CGFloat = double;
struct CGPoint {
  CGFloat x;
  CGFloat y;
};
struct CGSize {
  CGFloat width;
  CGFloat height;
};
struct CGVector {
  CGFloat dx;
  CGFloat dy;
};
struct CGRect {
  CGPoint origin;
  CGSize size;
};

inline CGPoint CGPointMake(CGFloat x, CGFloat y) {
  return {x, y};
}
inline CGSize CGSizeMake(CGFloat width, CGFloat height) {
  return {width, height};
}
inline CGVector CGVectorMake(CGFloat dx, CGFloat dy) {
  return {dx, dy};
}
inline CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
  return {{x, y}, {width, height}};
}
CGFloat CGRectGetMinX(CGRect rect);
CGFloat CGRectGetMidX(CGRect rect);
CGFloat CGRectGetMaxX(CGRect rect);
CGFloat CGRectGetMinY(CGRect rect);
CGFloat CGRectGetMidY(CGRect rect);
CGFloat CGRectGetMaxY(CGRect rect);
CGFloat CGRectGetWidth(CGRect rect);
CGFloat CGRectGetHeight(CGRect rect);
/// The edges at the lesser coordinates are inside, those at the greater are not.
bool CGRectContainsPoint(CGRect rect, CGPoint point);
bool CGRectEqualToRect(CGRect first, CGRect second);

// Core Graphics: displays.
using CGDirectDisplayID = std::uint32_t;
using boolean_t = unsigned int;
/// Null when the system knows no identifier for the display.
CFUUIDRef CGDisplayCreateUUIDFromDisplayID(std::uint32_t displayID);
boolean_t CGDisplayIsMain(CGDirectDisplayID display);
boolean_t CGDisplayIsBuiltin(CGDirectDisplayID display);

// Quartz Event Services.
using CGEventRef = struct __CGEvent*;
using CGEventTapProxy = struct __CGEventTapProxy*;
using CGEventMask = std::uint64_t;
enum CGEventType : std::uint32_t {
  kCGEventMouseMoved = 5,
  kCGEventTapDisabledByTimeout = 0xFFFFFFFE,
  kCGEventTapDisabledByUserInput = 0xFFFFFFFF,
};
enum CGEventFlags : std::uint64_t {
  kCGEventFlagMaskShift = 0x00020000,
  kCGEventFlagMaskControl = 0x00040000,
  kCGEventFlagMaskAlternate = 0x00080000,
  kCGEventFlagMaskCommand = 0x00100000,
};
enum CGEventTapLocation : std::uint32_t { kCGSessionEventTap = 1 };
enum CGEventTapPlacement : std::uint32_t { kCGHeadInsertEventTap = 0, kCGTailAppendEventTap = 1 };
enum CGEventTapOptions : std::uint32_t {
  kCGEventTapOptionDefault = 0,
  kCGEventTapOptionListenOnly = 1,
};
using CGEventTapCallBack = CGEventRef (*)(CGEventTapProxy proxy, CGEventType type, CGEventRef event,
                                          void* userInfo);

/// Null when the tap cannot be created, for example without the Accessibility permission.
CFMachPortRef CGEventTapCreate(CGEventTapLocation tap, CGEventTapPlacement place,
                               CGEventTapOptions options, CGEventMask eventsOfInterest,
                               CGEventTapCallBack callback, void* userInfo);
void CGEventTapEnable(CFMachPortRef tap, bool enable);
bool CGEventTapIsEnabled(CFMachPortRef tap);
CGEventFlags CGEventGetFlags(CGEventRef event);
/// In global display coordinates: origin top left of the first display, y downwards.
CGPoint CGEventGetLocation(CGEventRef event);
void CGEventSetLocation(CGEventRef event, CGPoint location);

// Accessibility.
/// Whether the user lets this process observe and change events.
Boolean AXIsProcessTrusted();

// The media clock.
/// Seconds since an arbitrary moment, by a monotonic clock.
CFTimeInterval CACurrentMediaTime();

}  // extern "C"

#endif
