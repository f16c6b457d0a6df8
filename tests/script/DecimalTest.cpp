// Parsing and formatting of numbers.
#include <limits>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "desk/script/Decimal.hpp"

namespace orvane::desk::script {
namespace {

TEST(DecimalTest, ReadsDecimalsWithSignAndFraction) {
  EXPECT_EQ(parseDecimal("0"), 0.0);
  EXPECT_EQ(parseDecimal("-98.5"), -98.5);
  EXPECT_EQ(parseDecimal("+0.1"), 0.1);
  EXPECT_EQ(parseDecimal("007"), 7.0);
}

TEST(DecimalTest, ReadsNothingElseAsADecimal) {
  for (const char* const text :
       {"", "-", "+", ".", "1.", ".5", "1.5.2", "1e3", "0x10", "nan", "NaN", "inf", "-infinity",
        "1,5", " 1", "1 ", "--1", "+-1", "１"}) {
    EXPECT_FALSE(parseDecimal(text)) << text;
    EXPECT_FALSE(parseNanoseconds(text)) << text;
  }
}

TEST(DecimalTest, RefusesWhatADoubleCannotHold) {
  EXPECT_FALSE(parseDecimal(std::string(400, '9')));
  EXPECT_TRUE(parseDecimal(std::string(300, '9')));
}

TEST(DecimalTest, ReadsWholeNumbers) {
  EXPECT_EQ(parseInteger("42"), 42);
  EXPECT_EQ(parseInteger("-42"), -42);
  EXPECT_EQ(parseInteger("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
  EXPECT_FALSE(parseInteger("9223372036854775808"));
  EXPECT_FALSE(parseInteger("1.0"));
  EXPECT_FALSE(parseInteger("x"));
}

TEST(DecimalTest, ReadsSecondsExactly) {
  EXPECT_EQ(parseNanoseconds("1000.05"), 1'000'050'000'000);
  EXPECT_EQ(parseNanoseconds("0.000000001"), 1);
  EXPECT_EQ(parseNanoseconds("0.0000000014"), 1);
  EXPECT_EQ(parseNanoseconds("0.0000000015"), 2);
  EXPECT_EQ(parseNanoseconds("0.9999999999"), 1'000'000'000);
  EXPECT_EQ(parseNanoseconds("-2.5"), -2'500'000'000);
  EXPECT_EQ(parseNanoseconds("9000000000.123456789"), 9'000'000'000'123'456'789);
  EXPECT_FALSE(parseNanoseconds("9300000000"));
}

TEST(DecimalTest, WritesSecondsWithoutTrailingZeros) {
  EXPECT_EQ(secondsText(0), "0");
  EXPECT_EQ(secondsText(1'000'050'000'000), "1000.05");
  EXPECT_EQ(secondsText(1), "0.000000001");
  EXPECT_EQ(secondsText(-2'500'000'000), "-2.5");
  EXPECT_EQ(secondsText(-1), "-0.000000001");
}

RC_GTEST_PROP(DecimalTest, ReadsTheSecondsThatItWrote, ()) {
  const auto nanoseconds =
      *rc::gen::inRange<std::int64_t>(-9'000'000'000'000'000'000, 9'000'000'000'000'000'000);
  RC_ASSERT(parseNanoseconds(secondsText(nanoseconds)) == nanoseconds);
}

}  // namespace
}  // namespace orvane::desk::script
