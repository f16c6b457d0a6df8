// The choice between the two languages.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/model/OrvaneLanguage.hpp"
#include "tests/support/IdentifierGenerator.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane {
namespace {

using Identifiers = std::vector<std::string>;

TEST(OrvaneLanguageTest, RawValuesAreReadBackAndOtherTextIsSystem) {
  for (const OrvaneLanguage language : OrvaneLanguage::allCases) {
    EXPECT_EQ(OrvaneLanguage::fromRawValue(language.rawValue()), language);
  }
  for (const char* const text : {"", "English", "zh", "chinese ", "klingon"}) {
    EXPECT_EQ(OrvaneLanguage::fromRawValue(text), OrvaneLanguage::system) << text;
  }
}

using OrvaneLanguageOnAMachineTest = desk::MachineFixture;

TEST_F(OrvaneLanguageOnAMachineTest, EachLanguageGivesItsOwnText) {
  machine.locale.preferredLanguages = {"zh-Hans"};
  EXPECT_EQ(OrvaneLanguage(OrvaneLanguage::english).localized("Quit", "退出"), "Quit");
  machine.locale.preferredLanguages = {"en"};
  EXPECT_EQ(OrvaneLanguage(OrvaneLanguage::chinese).localized("Quit", "退出"), "退出");
}

TEST_F(OrvaneLanguageOnAMachineTest, TheSystemsLanguageIsReadAtEachCall) {
  const OrvaneLanguage language = OrvaneLanguage::system;
  machine.locale.preferredLanguages = {"fr-FR"};
  machine.locale.currentIdentifier = "zh_CN";
  EXPECT_EQ(language.localized("Quit", "退出"), "退出");
  machine.locale.preferredLanguages = {"fr-FR", "en-GB"};
  EXPECT_EQ(language.localized("Quit", "退出"), "Quit");
  machine.locale.preferredLanguages = {"zh-Hant-HK", "en-GB"};
  EXPECT_EQ(language.localized("Quit", "退出"), "退出");
}

RC_GTEST_PROP(OrvaneLanguageProperty, TheSystemsLanguageAgreesWithRegularExpressions, ()) {
  const Identifiers identifiers = *genIdentifiers();
  const std::string fallback = *genIdentifier();
  Identifiers candidates = identifiers;
  candidates.push_back(fallback);
  const auto first = std::ranges::find_if(candidates, [](const std::string& identifier) {
    return namesChinese(identifier) || namesEnglish(identifier);
  });
  const bool isChinese = first != candidates.end() && namesChinese(*first);
  const OrvaneLanguage expected = isChinese ? OrvaneLanguage::chinese : OrvaneLanguage::english;
  RC_ASSERT(OrvaneLanguage::systemPreferred(identifiers, fallback) == expected);
}

}  // namespace
}  // namespace orvane
