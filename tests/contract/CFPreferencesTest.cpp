// Contract tests for Core Foundation strings and for reading another program's preferences.
#include <vector>

#include "Orvane/base/CFRef.hpp"
#include "Orvane/platform/CFText.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using Value = CFRef<CFPropertyListRef>;

class CFPreferencesContract : public ContractFixture {
 protected:
  static constexpr const char* program = "app.orvane.contract";
  const CFStringRef domain = CFSTR("app.orvane.contract");

  [[nodiscard]] Value copyValue(CFStringRef host = kCFPreferencesAnyHost) const {
    return Value::owning(
        CFPreferencesCopyValue(CFSTR("key"), domain, kCFPreferencesCurrentUser, host));
  }
  /// Along the application's search list.
  [[nodiscard]] Value copyAppValue() const {
    return Value::owning(CFPreferencesCopyAppValue(CFSTR("key"), domain));
  }
};

TEST_F(CFPreferencesContract, AValueThatWasNeverStoredIsNull) {
  CFPreferencesAppSynchronize(domain);
  EXPECT_FALSE(copyValue());
  EXPECT_FALSE(copyValue(kCFPreferencesCurrentHost));
  EXPECT_FALSE(copyAppValue());
}

TEST_F(CFPreferencesContract, AStringOfAnotherProgramIsSeenAfterSynchronising) {
  for (const char* const text : {"left", "right"}) {
    ORVANE_ARRANGE(storePreference(program, "key", text));
    CFPreferencesAppSynchronize(domain);
    EXPECT_EQ(textOf(copyValue().get()), text);
    EXPECT_EQ(textOf(copyAppValue().get()), text);
  }
}

TEST_F(CFPreferencesContract, AStoredNumberIsNotAString) {
  ORVANE_ARRANGE(storePreference(program, "key", 3.0));
  CFPreferencesAppSynchronize(domain);
  const Value value = copyValue();
  ASSERT_TRUE(value);
  EXPECT_NE(CFGetTypeID(value.get()), CFStringGetTypeID());
}

class CFStringContract : public ContractFixture {
 protected:
  static CFRef<CFStringRef> make(const char* text) {
    return CFRef<CFStringRef>::owning(
        CFStringCreateWithCString(kCFAllocatorDefault, text, kCFStringEncodingUTF8));
  }
};

TEST_F(CFStringContract, TextSurvivesTheRoundTrip) {
  for (const char* text : {"", "left", "\xE5\xB7\xA6\xE8\xBE\xB9", "\xF0\x9F\x96\xA5 display"}) {
    const auto string = make(text);
    ASSERT_TRUE(string);
    std::vector<char> buffer(static_cast<std::size_t>(CFStringGetMaximumSizeForEncoding(
                                 CFStringGetLength(string.get()), kCFStringEncodingUTF8)) +
                             1);
    ASSERT_TRUE(CFStringGetCString(string.get(), buffer.data(), static_cast<CFIndex>(buffer.size()),
                                   kCFStringEncodingUTF8));
    EXPECT_STREQ(buffer.data(), text);
  }
}

TEST_F(CFStringContract, TheLengthCountsUtf16Units) {
  EXPECT_EQ(CFStringGetLength(make("left").get()), 4);
  EXPECT_EQ(CFStringGetLength(make("\xE5\xB7\xA6\xE8\xBE\xB9").get()), 2);
  EXPECT_EQ(CFStringGetLength(make("\xF0\x9F\x96\xA5").get()), 2);
}

TEST_F(CFStringContract, ABufferNeedsRoomForTheTerminatingZero) {
  const auto string = make("left");
  char buffer[5];
  EXPECT_FALSE(CFStringGetCString(string.get(), buffer, 4, kCFStringEncodingUTF8));
  EXPECT_TRUE(CFStringGetCString(string.get(), buffer, 5, kCFStringEncodingUTF8));
}

TEST_F(CFStringContract, InvalidUtf8MakesNoString) {
  EXPECT_FALSE(make("\xFF"));
  EXPECT_FALSE(make("\xE5\xB7"));
}

TEST_F(CFStringContract, ACFSTRIsAString) {
  EXPECT_EQ(CFGetTypeID(CFSTR("orientation")), CFStringGetTypeID());
  EXPECT_EQ(CFStringGetLength(CFSTR("orientation")), 11);
}

}  // namespace
}  // namespace orvane
