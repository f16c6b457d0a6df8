// Display names in the three languages that they support.
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/geometry/OrvaneDisplayNameLocalizer.hpp"
#include "tests/support/IdentifierGenerator.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane {
namespace {

using namespace OrvaneDisplayNameLocalizer;

class OrvaneDisplayNameLocalizerTest : public desk::MachineFixture {
 protected:
  void setLanguage(const char* language) { store("appLanguage", language); }
  void prefer(std::vector<std::string> languages, std::string locale) {
    machine.locale.preferredLanguages = std::move(languages);
    machine.locale.currentIdentifier = std::move(locale);
  }
  static std::string builtInName() { return localizedDisplayName("", std::nullopt, true); }
};

TEST_F(OrvaneDisplayNameLocalizerTest, ABuiltInPanelHasAFixedNameInEachLanguage) {
  prefer({"zh-Hant-TW"}, "zh_TW");
  setLanguage("english");
  EXPECT_EQ(builtInName(), "Display");
  prefer({}, "en_US");
  setLanguage("chinese");
  EXPECT_EQ(builtInName(), "内建显示器");
  prefer({}, "zh_Hant_TW");
  EXPECT_EQ(builtInName(), "內建顯示器");
}

TEST_F(OrvaneDisplayNameLocalizerTest, AnExternalDisplayKeepsItsTrimmedNameUnlessItIsBlank) {
  EXPECT_EQ(localizedDisplayName(" \tLG  UltraFine\r\n", 2, false), "LG  UltraFine");
  EXPECT_EQ(localizedDisplayName("   ", 3, false), "Display 3");
  EXPECT_EQ(localizedDisplayName("", 4294967295, false), "Display 4294967295");
  EXPECT_EQ(localizedDisplayName("\n\xC2\xA0\xE3\x80\x80", 3, false), "Display 3");
}

TEST_F(OrvaneDisplayNameLocalizerTest, TheFallbackNamesAreKnownInEachLanguage) {
  setLanguage("english");
  EXPECT_EQ(fallbackDisplayName(3), "Display 3");
  EXPECT_EQ(fallbackDisplayName(std::nullopt), "Unknown Display");
  setLanguage("chinese");
  EXPECT_EQ(fallbackDisplayName(3), "显示器 3");
  EXPECT_EQ(fallbackDisplayName(std::nullopt), "未知显示器");
  prefer({}, "zh_TW");
  EXPECT_EQ(fallbackDisplayName(3), "顯示器 3");
  EXPECT_EQ(fallbackDisplayName(std::nullopt), "未知顯示器");
  EXPECT_EQ(localizedDisplayName(" ", std::nullopt, false), "未知顯示器");
}

TEST_F(OrvaneDisplayNameLocalizerTest, TheSettingChineseTakesItsScriptFromTheLocaleOnly) {
  setLanguage("chinese");
  prefer({"zh-Hant-TW"}, "en_US");
  EXPECT_EQ(builtInName(), "内建显示器");
  prefer({"zh-Hans"}, "zh_HK");
  EXPECT_EQ(builtInName(), "內建顯示器");
}

// The same rules as regular expressions.
DisplayNameLanguage expectedForSystem(const std::vector<std::string>& identifiers) {
  static const std::regex traditional(
      R"(\s*zh[-_](?:hant\s*|hant[-_][\s\S]*|tw[\s\S]*|hk[\s\S]*|mo[\s\S]*))", std::regex::icase);
  for (const std::string& identifier : identifiers) {
    if (std::regex_match(identifier, traditional)) {
      return DisplayNameLanguage::traditionalChinese;
    }
    if (namesChinese(identifier)) {
      return DisplayNameLanguage::simplifiedChinese;
    }
    if (namesEnglish(identifier)) {
      break;
    }
  }
  return DisplayNameLanguage::english;
}

RC_GTEST_PROP(OrvaneDisplayNameLocalizerProperty, TheSystemsLanguageAgreesWithRegularExpressions,
              ()) {
  std::vector<std::string> identifiers = *genIdentifiers();
  const std::string locale = *genIdentifier();
  desk::MachineScope scope;
  scope->locale.preferredLanguages = identifiers;
  scope->locale.currentIdentifier = locale;
  const DisplayNameLanguage language = currentChineseLanguageOrEnglish();
  identifiers.push_back(locale);
  RC_ASSERT(language == expectedForSystem(identifiers));
}

RC_GTEST_PROP(OrvaneDisplayNameLocalizerProperty, TheLocalesChineseAgreesWithARegularExpression,
              ()) {
  static const std::regex traditional(R"((?:zh[-_]hant|zh_tw|zh_hk|zh_mo)[\s\S]*)",
                                      std::regex::ECMAScript | std::regex::icase);
  const std::string locale = *genIdentifier();
  desk::MachineScope scope;
  scope->locale.currentIdentifier = locale;
  RC_ASSERT(currentChineseLanguage() == (std::regex_match(locale, traditional)
                                             ? DisplayNameLanguage::traditionalChinese
                                             : DisplayNameLanguage::simplifiedChinese));
}

}  // namespace
}  // namespace orvane
