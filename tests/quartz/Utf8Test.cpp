// Valid UTF-8 according to table 3-7 of the Unicode Standard.
#include <string_view>

#include <gtest/gtest.h>

#include "desk/quartz/Utf8.hpp"

namespace orvane::desk {
namespace {

TEST(Utf8Test, MeasuresInUtf16Units) {
  EXPECT_EQ(Utf8::lengthInUtf16(""), 0U);
  EXPECT_EQ(Utf8::lengthInUtf16("abc"), 3U);
  EXPECT_EQ(Utf8::lengthInUtf16("\xC3\xA9"), 1U);
  EXPECT_EQ(Utf8::lengthInUtf16("\xE4\xB8\xAD\xE6\x96\x87"), 2U);
  EXPECT_EQ(Utf8::lengthInUtf16("\xF0\x9F\x98\x80"), 2U);
}

TEST(Utf8Test, AcceptsTheFirstAndLastOfEachForm) {
  for (const std::string_view text :
       {"\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
        "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(Utf8::isValid(text));
  }
}

TEST(Utf8Test, RefusesInvalidText) {
  for (const std::string_view text :
       {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\xC2", "\xE4\xB8", "\xF0\x9F\x98",
        "\xC2\x41", "\xE4\xB8\x41", "a\xE4\xB8\xAD\xB8"}) {
    EXPECT_FALSE(Utf8::isValid(text));
  }
}

}  // namespace
}  // namespace orvane::desk
