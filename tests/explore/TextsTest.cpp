// A text of the wrong language is seen, one of the right language is not.
#include <gtest/gtest.h>

#include "desk/explore/Texts.hpp"

namespace orvane::desk::explore {
namespace {

TEST(Texts, OfTheOtherLanguageAreSeen) {
  EXPECT_TRUE(isIn(Tongue::english, "Pin Dock", {}));
  EXPECT_FALSE(isIn(Tongue::english, "固定 Dock", {}));
  EXPECT_FALSE(isIn(Tongue::english, "Main（）", {}));
  EXPECT_TRUE(isIn(Tongue::chinese, "固定 Dock", {}));
  EXPECT_FALSE(isIn(Tongue::chinese, "Pin Dock", {}));
  EXPECT_TRUE(isIn(Tongue::english, "⌥ Option “now”…", {}));
}

TEST(Texts, OfNamesMayBeInAnyLanguage) {
  EXPECT_TRUE(isIn(Tongue::english, "书房 (Main)", {"书房"}));
  EXPECT_TRUE(isIn(Tongue::chinese, "DELL U2720Q（主要）", {"DELL", "DELL U2720Q"}));
  EXPECT_FALSE(isIn(Tongue::chinese, "DELL U2720Q (Main)", {"DELL U2720Q"}));
}

TEST(Texts, SpeakTheFirstLanguageOfTheListThatIsEnglishOrChinese) {
  EXPECT_EQ(tongueFor("system", {{"fr-FR", "zh-Hant-TW", "en"}, "en_US"}), Tongue::chinese);
  EXPECT_EQ(tongueFor("system", {{"zhx", "en-AU"}, "zh_CN"}), Tongue::english);
  EXPECT_EQ(tongueFor("system", {{}, "ZH_cn"}), Tongue::chinese);
  EXPECT_EQ(tongueFor("system", {{"fr"}, "de"}), Tongue::english);
  EXPECT_EQ(tongueFor("english", {{"zh"}, "zh"}), Tongue::english);
}

}  // namespace
}  // namespace orvane::desk::explore
