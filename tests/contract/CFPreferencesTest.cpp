// Contract tests for reading another program's preferences.
#include "Orvane/base/CFRef.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using Value = CFRef<CFPropertyListRef>;

class CFPreferencesContract : public ContractFixture {
 protected:
  static constexpr const char* program = "app.orvane.contract";

  static Value copyValue() {
    return Value::owning(CFPreferencesCopyValue(CFSTR("key"), CFSTR("app.orvane.contract"),
                                                kCFPreferencesCurrentUser, kCFPreferencesAnyHost));
  }
  static std::string text(const Value& value) {
    char buffer[64] = "";
    CFStringGetCString(static_cast<CFStringRef>(value.get()), buffer, sizeof buffer,
                       kCFStringEncodingUTF8);
    return buffer;
  }
};

TEST_F(CFPreferencesContract, AValueThatWasNeverStoredIsNull) {
  CFPreferencesAppSynchronize(CFSTR("app.orvane.contract"));
  EXPECT_FALSE(copyValue());
  EXPECT_FALSE(
      Value::owning(CFPreferencesCopyAppValue(CFSTR("key"), CFSTR("app.orvane.contract"))));
  EXPECT_FALSE(
      Value::owning(CFPreferencesCopyValue(CFSTR("key"), CFSTR("app.orvane.contract"),
                                           kCFPreferencesCurrentUser, kCFPreferencesCurrentHost)));
}

TEST_F(CFPreferencesContract, AStoredStringIsAStringWithItsText) {
  ORVANE_ARRANGE(storePreference(program, "key", "left"));
  CFPreferencesAppSynchronize(CFSTR("app.orvane.contract"));
  const Value value = copyValue();
  ASSERT_TRUE(value);
  EXPECT_EQ(CFGetTypeID(value.get()), CFStringGetTypeID());
  EXPECT_EQ(text(value), "left");
}

TEST_F(CFPreferencesContract, AStoredNumberIsNotAString) {
  ORVANE_ARRANGE(storePreference(program, "key", 3.0));
  CFPreferencesAppSynchronize(CFSTR("app.orvane.contract"));
  const Value value = copyValue();
  ASSERT_TRUE(value);
  EXPECT_NE(CFGetTypeID(value.get()), CFStringGetTypeID());
}

TEST_F(CFPreferencesContract, AChangeByAnotherProgramIsSeenAfterSynchronising) {
  ORVANE_ARRANGE(storePreference(program, "key", "left"));
  CFPreferencesAppSynchronize(CFSTR("app.orvane.contract"));
  EXPECT_EQ(text(copyValue()), "left");
  ORVANE_ARRANGE(storePreference(program, "key", "right"));
  CFPreferencesAppSynchronize(CFSTR("app.orvane.contract"));
  EXPECT_EQ(text(copyValue()), "right");
}

TEST_F(CFPreferencesContract, TheSearchListFindsTheApplicationsValue) {
  ORVANE_ARRANGE(storePreference(program, "key", "left"));
  CFPreferencesAppSynchronize(CFSTR("app.orvane.contract"));
  EXPECT_EQ(
      text(Value::owning(CFPreferencesCopyAppValue(CFSTR("key"), CFSTR("app.orvane.contract")))),
      "left");
}

}  // namespace
}  // namespace orvane
