// The language of the system's programs.
#include <gtest/gtest.h>

#include "desk/settings/SystemLanguage.hpp"

namespace orvane::desk {
namespace {

bool isChinese(std::vector<std::string> preferred) {
  return SystemLanguage::of({std::move(preferred), "en_US"}).isChinese();
}

TEST(SystemLanguageTest, TheFirstOfTheTwoLanguagesCounts) {
  EXPECT_TRUE(isChinese({"zh-Hans-CN", "en-US"}));
  EXPECT_FALSE(isChinese({"en-US", "zh-Hans-CN"}));
  EXPECT_TRUE(isChinese({"fr-FR", "zh_TW"}));
}

TEST(SystemLanguageTest, WithoutEitherItIsEnglish) {
  EXPECT_FALSE(isChinese({}));
  EXPECT_FALSE(isChinese({"fr-FR", "zhx"}));
}

}  // namespace
}  // namespace orvane::desk
