// Contract tests for the application object and what belongs to an application: its announcements,
// its bundle, its languages, its registration as a login item and its user defaults.
#include <string>

#include "Orvane/platform/appkit/Accessibility.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/Bundle.hpp"
#include "Orvane/platform/appkit/Locale.hpp"
#include "Orvane/platform/appkit/LoginItem.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/platform/appkit/UserDefaults.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using ApplicationContract = ContractFixture;

TEST_F(ApplicationContract, StoppingAModalSessionThatDoesNotRunDoesNothing) {
  appkit::Application::stopModal(appkit::ModalResponse::alertFirstButton);
  letTimePass(0);
}

TEST_F(ApplicationContract, WithoutAWindowThereIsNoKeyOrModalWindow) {
  EXPECT_FALSE(appkit::Application::keyWindow().has_value());
  EXPECT_FALSE(appkit::Application::modalWindow().has_value());
}

TEST_F(ApplicationContract, TheMouseLocationIsInWindowSystemCoordinates) {
  ORVANE_ARRANGE(arrangeTwoDisplays());
  ORVANE_ARRANGE(movePointer(CGPointMake(1200, 100)));
  const CGPoint place = appkit::Application::mouseLocation();
  EXPECT_EQ(place.x, 1200);
  EXPECT_EQ(place.y, 700);
}

using appkit::Accessibility;

using AccessibilityContract = ContractFixture;

TEST_F(AccessibilityContract, AnyTextCanBeAnnouncedWithoutAScreenReader) {
  for (const char* const text :
       {"The Dock is pinned to Left", "\xE5\xB7\xB2\xE9\x98\xB2\xE6\xAD\xA2 Dock", ""}) {
    Accessibility::announce(text);
  }
  for (const char* const invalidUtf8 :
       {"\xC3", "cut off \xE5\xB7", "\xED\xA0\x80", "\xC0\xAF", "\xFF\xFE"}) {
    Accessibility::announce(invalidUtf8);
  }
  bool isDelivered = false;
  appkit::MainQueue::async([&isDelivered] { isDelivered = true; });
  letTimePass(0.05);
  EXPECT_TRUE(isDelivered) << "the main queue still runs";
}

using appkit::Bundle;
using BundleContract = ContractFixture;

TEST_F(BundleContract, ItsLocationIsAFileURL) {
  const std::optional<std::string> url = Bundle::url();
  ASSERT_TRUE(url);
  EXPECT_TRUE(url->starts_with("file:///")) << *url;
}

TEST_F(BundleContract, AReadOnlyVolumeIsRecognised) {
  EXPECT_FALSE(Bundle::isOnReadOnlyVolume());
  ORVANE_ARRANGE(makeVolumeReadOnly());
  EXPECT_TRUE(Bundle::isOnReadOnlyVolume());
}

using LocaleContract = ContractFixture;

TEST_F(LocaleContract, ThereIsAlwaysALanguageAndALocale) {
  EXPECT_FALSE(appkit::Locale::preferredLanguages().empty());
  EXPECT_FALSE(appkit::Locale::currentIdentifier().empty());
}

TEST_F(LocaleContract, LanguagesAreReadAtEachCallInOrderOfPreference) {
  ORVANE_ARRANGE(setLocale({"fr-FR", "zh-Hant-TW"}, "zh_TW"));
  EXPECT_EQ(appkit::Locale::preferredLanguages(),
            (std::vector<std::string>{"fr-FR", "zh-Hant-TW"}));
  EXPECT_EQ(appkit::Locale::currentIdentifier(), "zh_TW");
  ORVANE_ARRANGE(setLocale({"en-GB"}, "en_GB"));
  EXPECT_EQ(appkit::Locale::preferredLanguages(), (std::vector<std::string>{"en-GB"}));
}

using appkit::LoginItem;
using LoginItemContract = ContractFixture;

TEST_F(LoginItemContract, TheStatusIsAlwaysReadable) {
  const int status = static_cast<int>(LoginItem::status());
  EXPECT_GE(status, 0);
  EXPECT_LE(status, 3);
}

TEST_F(LoginItemContract, RegisteringAndUnregisteringShowInTheStatus) {
  ORVANE_ARRANGE(canRegisterLoginItem());
  EXPECT_EQ(LoginItem::registerApplication(), std::nullopt);
  EXPECT_EQ(LoginItem::status(), LoginItem::Status::enabled);
  EXPECT_EQ(LoginItem::unregisterApplication(), std::nullopt);
  EXPECT_EQ(LoginItem::status(), LoginItem::Status::notRegistered);
}

TEST_F(LoginItemContract, AFailureReturnsThePlatformsErrorAndKeepsTheStatus) {
  ORVANE_ARRANGE(failLoginItem("Operation not permitted"));
  const LoginItem::Status before = LoginItem::status();
  EXPECT_EQ(LoginItem::registerApplication(), "Operation not permitted");
  EXPECT_EQ(LoginItem::status(), before);
}

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
