// Formatting of JSON.
#include <cstdlib>
#include <limits>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <rapidcheck/gtest.h>

#include "desk/script/JsonText.hpp"

namespace orvane::desk::script {
namespace {

using Json = nlohmann::ordered_json;

TEST(JsonTextTest, WritesWholeNumbersWithoutAFraction) {
  EXPECT_EQ(jsonText(Json(1920.0)), "1920");
  EXPECT_EQ(jsonText(Json(-0.0)), "0");
  EXPECT_EQ(jsonText(Json(42)), "42");
  EXPECT_EQ(jsonText(Json(1e21)), "1000000000000000000000");
}

TEST(JsonTextTest, WritesTheShortestDecimalWithoutAnExponent) {
  EXPECT_EQ(jsonText(Json(0.1)), "0.1");
  EXPECT_EQ(jsonText(Json(1000.05)), "1000.05");
  EXPECT_EQ(jsonText(Json(0.000001)), "0.000001");
  EXPECT_EQ(jsonText(Json(-98.5)), "-98.5");
}

TEST(JsonTextTest, WritesNullForWhatIsNoNumber) {
  EXPECT_EQ(jsonText(Json(std::numeric_limits<double>::quiet_NaN())), "null");
  EXPECT_EQ(jsonText(Json(std::numeric_limits<double>::infinity())), "null");
}

TEST(JsonTextTest, WritesOnOneLineWithoutBlanksInTheOrderOfTheKeys) {
  const Json value = {{"b", {1.0, true, nullptr}}, {"a", {{"x", "y z"}}}, {"e", Json::array()}};
  EXPECT_EQ(jsonText(value), R"({"b":[1,true,null],"a":{"x":"y z"},"e":[]})");
}

TEST(JsonTextTest, KeepsTextReadableAndWellFormed) {
  EXPECT_EQ(jsonText(Json("显示器 \"é\"\n")), "\"显示器 \\\"é\\\"\\n\"");
  EXPECT_EQ(jsonText(Json("a\xFF")), "\"a\xEF\xBF\xBD\"");
}

RC_GTEST_PROP(JsonTextTest, WritesEveryNumberSoThatItReadsBackTheSame, (double number)) {
  const std::string text = jsonText(Json(number));
  RC_ASSERT(text.find_first_not_of("-0123456789.") == std::string::npos);
  RC_ASSERT(std::strtod(text.c_str(), nullptr) == number);
}

}  // namespace
}  // namespace orvane::desk::script
