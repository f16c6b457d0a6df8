// What `show` prints, byte for byte.
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "Orvane/platform/appkit/Accessibility.hpp"
#include "tests/script/ScriptBench.hpp"
#include "tests/script/ScriptRun.hpp"

namespace orvane::desk::script {
namespace {

std::string outputOf(const std::string& text) {
  const ScriptRun run = runScript(text);
  EXPECT_EQ(run.errors, "");
  return run.output;
}

TEST(ShowTest, PrintsAnnouncementsExceptEmptyAndMalformedOnes) {
  ScriptBench bench;
  bench.session.application().launch();
  appkit::Accessibility::announce("");
  appkit::Accessibility::announce("first");
  appkit::Accessibility::announce("not \xC3 UTF-8");
  appkit::Accessibility::announce("\xED\xA0\x80");
  appkit::Accessibility::announce("Bureau \xC3\xA9");
  EXPECT_EQ(bench.interpreter.run("show announcements"), std::nullopt);
  EXPECT_EQ(bench.output.str(), "[\"first\",\"Bureau \xC3\xA9\"]\n");
}

TEST(ShowTest, TheScenarioOfEverythingShowsEachInspectable) {
  std::ifstream file(ORVANE_SOURCE_FOLDER "/tests/scenarios/everything-shown.desk");
  std::set<std::string> shown;
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    std::string command;
    std::string inspectable;
    words >> command >> inspectable;
    if (command == "show") {
      shown.insert(inspectable);
    }
  }
  std::string list;
  for (const std::string& inspectable : shown) {
    list += (list.empty() ? "" : ", ") + inspectable;
  }
  EXPECT_EQ(list, standardInspectables().names());
}

TEST(ShowTest, EchoesItsWords) {
  EXPECT_EQ(outputOf("echo a   b \"c  d\" # e\necho\n"), "a b c  d\n\n");
}

}  // namespace
}  // namespace orvane::desk::script
