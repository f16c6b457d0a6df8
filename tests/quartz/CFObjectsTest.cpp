// The desk's Core Foundation objects: constants, copies of preferences, errors with references,
// which are recorded as faults, and valid UTF-8 according to table 3-7 of the Unicode Standard.
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/base/CFRef.hpp"
#include "desk/quartz/CFObjects.hpp"
#include "desk/quartz/Utf8.hpp"
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

TEST(Utf8Test, MeasuresInUtf16Units) {
  EXPECT_EQ(Utf8::lengthInUtf16(""), 0U);
  EXPECT_EQ(Utf8::lengthInUtf16("abc"), 3U);
  EXPECT_EQ(Utf8::lengthInUtf16("\xC3\xA9"), 1U);
  EXPECT_EQ(Utf8::lengthInUtf16("\xE4\xB8\xAD\xE6\x96\x87"), 2U);
  EXPECT_EQ(Utf8::lengthInUtf16("\xF0\x9F\x98\x80"), 2U);
}

TEST(Utf8Test, AcceptsTheFirstAndLastOfEachForm) {
  for (const std::string_view text :
       {"\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
        "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(Utf8::isValid(text));
  }
}

TEST(Utf8Test, RefusesInvalidText) {
  for (const std::string_view text :
       {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\xC2", "\xE4\xB8", "\xF0\x9F\x98",
        "\xC2\x41", "\xE4\xB8\x41", "a\xE4\xB8\xAD\xB8"}) {
    EXPECT_FALSE(Utf8::isValid(text));
  }
}

}  // namespace
}  // namespace orvane::desk
