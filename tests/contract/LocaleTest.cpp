// Contract tests for the user's languages.
#include "Orvane/platform/appkit/Locale.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

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

}  // namespace
}  // namespace orvane
