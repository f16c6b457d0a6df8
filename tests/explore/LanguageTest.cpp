// Which texts count as English and as Chinese.
#include <gtest/gtest.h>

#include "desk/explore/Language.hpp"

namespace orvane::desk::explore {
namespace {

TEST(Language, IsRecognisedByCharactersAndWords) {
  EXPECT_TRUE(isWrittenIn(Language::english, "Pin Dock", {}));
  EXPECT_FALSE(isWrittenIn(Language::english, "固定 Dock", {}));
  EXPECT_FALSE(isWrittenIn(Language::english, "Main（）", {}));
  EXPECT_TRUE(isWrittenIn(Language::chinese, "固定 Dock", {}));
  EXPECT_FALSE(isWrittenIn(Language::chinese, "Pin Dock", {}));
  EXPECT_TRUE(isWrittenIn(Language::english, "⌥ Option “now”…", {}));
}

TEST(Language, AllowsNamesInAnyLanguage) {
  EXPECT_TRUE(isWrittenIn(Language::english, "书房 (Main)", {"书房"}));
  EXPECT_TRUE(isWrittenIn(Language::chinese, "DELL U2720Q（主要）", {"DELL", "DELL U2720Q"}));
  EXPECT_FALSE(isWrittenIn(Language::chinese, "DELL U2720Q (Main)", {"DELL U2720Q"}));
}

TEST(Language, IsTheFirstPreferredOneThatIsEnglishOrChinese) {
  EXPECT_EQ(languageFor("system", {{"fr-FR", "zh-Hant-TW", "en"}, "en_US"}), Language::chinese);
  EXPECT_EQ(languageFor("system", {{"zhx", "en-AU"}, "zh_CN"}), Language::english);
  EXPECT_EQ(languageFor("system", {{}, "ZH_cn"}), Language::chinese);
  EXPECT_EQ(languageFor("system", {{"fr"}, "de"}), Language::english);
  EXPECT_EQ(languageFor("english", {{"zh"}, "zh"}), Language::english);
}

}  // namespace
}  // namespace orvane::desk::explore
