// Contract tests for reading another program's preferences.
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

}  // namespace
}  // namespace orvane
