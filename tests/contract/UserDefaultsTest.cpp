// Contract tests for user defaults.
#include "Orvane/platform/appkit/UserDefaults.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::UserDefaults;

class UserDefaultsContract : public ContractFixture {
 protected:
  static constexpr const char* key = "contract.key";
  UserDefaultsContract() { UserDefaults::remove(key); }
  ~UserDefaultsContract() override { UserDefaults::remove(key); }
};

TEST_F(UserDefaultsContract, AStoredValueIsReadBackAtOnceUntilItIsRemoved) {
  EXPECT_EQ(UserDefaults::string(key), std::nullopt);
  EXPECT_EQ(UserDefaults::boolean(key), std::nullopt);
  for (const char* const text : {"\xE5\xB7\xA6 left", ""}) {
    UserDefaults::setString(key, text);
    EXPECT_EQ(UserDefaults::string(key), text);
  }
  for (const bool value : {true, false}) {
    UserDefaults::setBoolean(key, value);
    EXPECT_EQ(UserDefaults::boolean(key), value);
  }
  UserDefaults::remove(key);
  UserDefaults::remove(key);
  EXPECT_EQ(UserDefaults::boolean(key), std::nullopt);
}

TEST_F(UserDefaultsContract, AValueOfAnotherTypeIsAbsent) {
  UserDefaults::setString(key, "true");
  EXPECT_EQ(UserDefaults::boolean(key), std::nullopt);
  UserDefaults::setBoolean(key, true);
  EXPECT_EQ(UserDefaults::string(key), std::nullopt);
  ORVANE_ARRANGE(storeNumberInUserDefaults(key, 1));
  EXPECT_EQ(UserDefaults::string(key), std::nullopt);
  EXPECT_EQ(UserDefaults::boolean(key), std::nullopt);
}

}  // namespace
}  // namespace orvane
