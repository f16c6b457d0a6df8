// Trimming and normalising identifiers and display names.
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "Orvane/base/Text.hpp"

namespace orvane {
namespace {

TEST(TextTest, BlanksAndLineBreaksAreTrimmedAtBothEndsOnly) {
  EXPECT_EQ(trimmed(" \t\r\n\v\fStudio  Display\n \t"), "Studio  Display");
  EXPECT_EQ(trimmed("plain"), "plain");
  EXPECT_EQ(trimmed(""), "");
  EXPECT_EQ(trimmed(" \n \t "), "");
}

TEST(TextTest, EverySpaceOfUnicodeIsTrimmed) {
  for (const std::string_view blank :
       {"\u0085", "\u00A0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005",
        "\u2006", "\u2007", "\u2008", "\u2009", "\u200A", "\u2028", "\u2029", "\u202F", "\u205F",
        "\u3000"}) {
    const std::string padded = std::string(blank) + "a" + std::string(blank);
    EXPECT_EQ(trimmed(padded), "a") << padded;
  }
}

TEST(TextTest, CharactersThatShareBytesWithSpacesAreKept) {
  // Their last bytes are those of a no-break space and of a next line.
  EXPECT_EQ(trimmed("à"), "à");
  EXPECT_EQ(trimmed("Å"), "Å");
  EXPECT_EQ(trimmed("　显示器　"), "显示器");
}

TEST(TextTest, OnlyTheLettersAToZAreLowered) {
  EXPECT_EQ(asciiLowercased("AZaz09-_[]@`{"), "azaz09-_[]@`{");
  EXPECT_EQ(asciiLowercased("ÄÖ显示"), "ÄÖ显示");
}

TEST(TextTest, IdentifiersAreComparedTrimmedWithDashesInLowerCase) {
  EXPECT_EQ(normalizedLocaleIdentifier("  ZH_Hant_TW\n"), "zh-hant-tw");
  EXPECT_EQ(normalizedLocaleIdentifier("_"), "-");
}

}  // namespace
}  // namespace orvane
