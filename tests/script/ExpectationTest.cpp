// Values at paths, and the messages of failed expectations.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "desk/script/Expectation.hpp"
#include "desk/script/JsonText.hpp"
#include "tests/script/ScriptRun.hpp"

namespace orvane::desk::script {
namespace {

std::string at(const char* root, const char* path) {
  const std::optional<Json> value = valueAt(*parseJson(root), *parsePath(path));
  return value ? jsonText(*value) : "nothing";
}

TEST(ExpectationTest, CutsAPathAtItsDots) {
  EXPECT_EQ(parsePath("a.0.#"), (std::vector<std::string>{"a", "0", "#"}));
  EXPECT_FALSE(parsePath(""));
  EXPECT_FALSE(parsePath("a."));
  EXPECT_FALSE(parsePath(".a"));
  EXPECT_FALSE(parsePath("a..b"));
}

TEST(ExpectationTest, FollowsKeysAndIndexes) {
  constexpr const char* root = R"({"a":[10,{"b":"c"}],"1":"one"})";
  EXPECT_EQ(at(root, "a.0"), "10");
  EXPECT_EQ(at(root, "a.1.b"), "\"c\"");
  EXPECT_EQ(at(root, "1"), "\"one\"");
  EXPECT_EQ(at(root, "a.-1.b"), "\"c\"");
  EXPECT_EQ(at(root, "a.-2"), "10");
}

TEST(ExpectationTest, FindsNothingWhereNothingIs) {
  constexpr const char* root = R"({"a":[10],"b":"text","c":null})";
  for (const char* const path :
       {"x", "a.1", "a.-2", "a.x", "a.99999999999999999999", "b.0", "b.#", "c.d", "a.#.0"}) {
    EXPECT_EQ(at(root, path), "nothing") << path;
  }
  EXPECT_EQ(at(root, "c"), "null");
}

TEST(ExpectationTest, CountsWithTheNumberSign) {
  constexpr const char* root = R"({"a":[1,2],"o":{"x":1},"e":[]})";
  EXPECT_EQ(at(root, "a.#"), "2");
  EXPECT_EQ(at(root, "o.#"), "1");
  EXPECT_EQ(at(root, "e.#"), "0");
  EXPECT_EQ(at(root, "#"), "3");
}

TEST(ExpectationTest, ReadsJsonAndNothingElse) {
  for (const char* const text :
       {"", "locked", "'a'", "{a:1}", "[1,]", "1 2", "nan", "1e999", "\"a"}) {
    EXPECT_FALSE(parseJson(text)) << text;
  }
  EXPECT_TRUE(parseJson(" [1, {\"a\": null}] "));
}

TEST(ExpectationTest, ReadsJsonDownToAHundredLevels) {
  EXPECT_TRUE(parseJson(std::string(100, '[') + std::string(100, ']')));
  EXPECT_FALSE(parseJson(std::string(101, '[') + std::string(101, ']')));
  EXPECT_TRUE(parseJson("\"" + std::string(200, '[') + "\\\"[\""));
  EXPECT_FALSE(parseJson(std::string(5'000'000, '[')));
}

TEST(ExpectationTest, ComparesValuesAndNotTheirSpelling) {
  EXPECT_TRUE(isSameJson(*parseJson("1"), *parseJson("1.0")));
  EXPECT_TRUE(isSameJson(*parseJson(R"({"a":1,"b":2})"), *parseJson(R"({"b":2,"a":1})")));
  EXPECT_FALSE(isSameJson(*parseJson("[1,2]"), *parseJson("[2,1]")));
  EXPECT_FALSE(isSameJson(*parseJson("0"), *parseJson("false")));
  EXPECT_FALSE(isSameJson(*parseJson("\"1\""), *parseJson("1")));
}

TEST(ExpectationTest, ReportsEachFailureAndGoesOn) {
  const ScriptRun run = runScript(
      "expect clock.media 1000.5   # not yet\n"
      "advance 0.5\n"
      "expect clock.media 1000.5\n"
      "expect dock.edge \"left\"\n"
      "expect guard.zones.0 {\"rect\": [1, 2.50]}\n"
      "echo end\n");
  EXPECT_EQ(run.status, ScriptProgram::failed);
  EXPECT_EQ(run.output, "end\n");
  EXPECT_EQ(run.errors,
            "script.desk:1: expected clock.media = 1000.5, got 1000\n"
            "script.desk:4: expected dock.edge = \"left\", got \"bottom\"\n"
            "script.desk:5: expected guard.zones.0 = {\"rect\":[1,2.5]}, got nothing\n");
}

TEST(ExpectationTest, AMissingCountIsZero) {
  EXPECT_EQ(runScript("expect dock.reveals.2 0\n").status, ScriptProgram::held);
  EXPECT_EQ(runScript("expect dock.reveals.2 1\n").errors,
            "script.desk:1: expected dock.reveals.2 = 1, got 0\n");
  EXPECT_EQ(runScript("expect dock.nothing 0\n").errors,
            "script.desk:1: expected dock.nothing = 0, got nothing\n");
  EXPECT_EQ(runScript("expect defaults.reveals.2 0\n").status, ScriptProgram::failed);
}

TEST(ExpectationTest, ReadsTheValueAsItIsWritten) {
  EXPECT_EQ(runScript("defaults set a string \"b # \\\"c\\\" \\\\ d\"\n"
                      "expect defaults.a \"b # \\\"c\\\" \\u005c d\"  # \"e\"\n")
                .errors,
            "");
}

TEST(ExpectationTest, PassesTheFirstPartOfThePathAsTheParameter) {
  ScriptProgram::Settings settings;
  settings.inspectables.add(
      "tree", {.parameter = "SURFACE",
               .look = [](ScriptContext&, const std::string& surface, Json& shown) -> Problem {
                 shown = {{"role", surface}};
                 return surface == "none" ? Problem("there is no surface") : std::nullopt;
               },
               .countingMember = {}});
  const ScriptRun run = runScript("show tree main\nexpect tree.main.role \"main\"\n", settings);
  EXPECT_EQ(run.output, "{\"role\":\"main\"}\n");
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(problemOf("expect tree.none.role 1\n", settings), "expect: there is no surface");
  EXPECT_EQ(problemOf("show tree none\n", settings), "show: there is no surface");
  EXPECT_EQ(problemOf("show tree\n", settings), "show: SURFACE is missing (show THING)");
  EXPECT_EQ(problemOf("expect tree {}\n", settings),
            "expect: SURFACE is missing after \"tree.\" (expect THING.PATH VALUE)");
}

}  // namespace
}  // namespace orvane::desk::script
