// The desk's Core Foundation objects: constants, copies of preferences, and errors with references,
// which are recorded as faults.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/base/CFRef.hpp"
#include "desk/quartz/CFObjects.hpp"
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

using Value = CFRef<CFPropertyListRef>;

class CFPreferencesTest : public MachineFixture {
 protected:
  static Value copy(CFStringRef host = kCFPreferencesAnyHost) {
    return Value::owning(
        CFPreferencesCopyValue(CFSTR("key"), CFSTR("program"), kCFPreferencesCurrentUser, host));
  }
  void store(PropertyValue value, Preferences::Host host = Preferences::Host::any) {
    machine.preferences.set({"program", Preferences::User::current, host}, "key", std::move(value));
    CFPreferencesAppSynchronize(CFSTR("program"));
  }
};

TEST_F(CFPreferencesTest, EachCopyIsANewObject) {
  store(std::string("text"));
  const Value first = copy();
  const Value second = copy();
  EXPECT_NE(first.get(), second.get());
  EXPECT_EQ(machine.objects.liveCount(), 2U);
}

TEST_F(CFPreferencesTest, HostsAreDistinguished) {
  store(std::string("text"), Preferences::Host::current);
  EXPECT_FALSE(copy());
  EXPECT_TRUE(copy(kCFPreferencesCurrentHost));
  EXPECT_TRUE(Value::owning(CFPreferencesCopyAppValue(CFSTR("key"), CFSTR("program"))));
}

TEST_F(CFPreferencesTest, TextThatIsNotUtf8IsNotAValue) {
  store(std::string("\xFF"));
  EXPECT_FALSE(copy());
}

using CFStringTest = MachineFixture;

TEST_F(CFStringTest, AConstantIsOneObjectForAllMachinesAndNotCounted) {
  const CFStringRef constant = CFSTR("orientation");
  EXPECT_EQ(constant, deskConstantString("orientation"));
  EXPECT_NE(constant, CFSTR("autohide"));
  CFRelease(constant);
  CFRelease(constant);
  EXPECT_EQ(*textOf(constant, "test"), "orientation");
  EXPECT_EQ(machine.objects.liveCount(), 0U);
}

}  // namespace
}  // namespace orvane::desk
