// Errors with Core Foundation references are recorded as faults.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/MachineFixture.hpp"

namespace orvane::desk {
namespace {

using Texts = std::vector<std::string>;

class CFFaultsTest : public MachineFixture {
 protected:
  static CFStringRef make(const char* text) {
    return CFStringCreateWithCString(kCFAllocatorDefault, text, kCFStringEncodingUTF8);
  }
};

TEST_F(CFFaultsTest, UseAfterReleaseIsAFault) {
  const CFStringRef string = make("a");
  CFRelease(string);
  EXPECT_EQ(CFStringGetLength(string), 0);
  EXPECT_EQ(CFGetTypeID(string), 0U);
  EXPECT_EQ(machine.faults.take(), (Texts{"CFStringGetLength: CFString \"a\" was already released",
                                          "CFGetTypeID: CFString \"a\" was already released"}));
}

TEST_F(CFFaultsTest, NullIsAFault) {
  CFRelease(nullptr);
  CGEventTapEnable(nullptr, true);
  CFMachPortInvalidate(nullptr);
  EXPECT_EQ(CGEventGetLocation(nullptr).x, 0);
  EXPECT_EQ(machine.faults.take(), (Texts{"CFRelease: null instead of an object",
                                          "CGEventTapEnable: null instead of an object",
                                          "CFMachPortInvalidate: null instead of an object",
                                          "CGEventGetLocation: null instead of an event"}));
}

TEST_F(CFFaultsTest, AnObjectOfAnotherKindIsAFault) {
  EXPECT_EQ(
      CFPreferencesCopyAppValue(CFSTR("key"), reinterpret_cast<CFStringRef>(CFRunLoopGetCurrent())),
      nullptr);
  EXPECT_EQ(machine.faults.take(), (Texts{"CFPreferencesCopyAppValue: CFRunLoop is no CFString"}));
}

TEST_F(CFFaultsTest, AnUnknownModeIsAFault) {
  machine.permission.setTrusted(true);
  const CFMachPortRef port = CGEventTapCreate(
      kCGSessionEventTap, kCGTailAppendEventTap, kCGEventTapOptionDefault, 0x20,
      [](CGEventTapProxy, CGEventType, CGEventRef event, void*) { return event; }, nullptr);
  const CFRunLoopSourceRef source = CFMachPortCreateRunLoopSource(kCFAllocatorDefault, port, 0);
  CFRunLoopAddSource(CFRunLoopGetCurrent(), source, CFSTR("mine"));
  EXPECT_EQ(machine.faults.take(), (Texts{"CFRunLoopAddSource: unknown mode mine"}));
  CFRelease(source);
  CFRelease(port);
}

}  // namespace
}  // namespace orvane::desk
