// Stored preferences as Core Foundation objects.
#include <gtest/gtest.h>

#include "Orvane/base/CFRef.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane::desk {
namespace {

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

}  // namespace
}  // namespace orvane::desk
