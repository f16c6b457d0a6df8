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

TEST(ShowTest, PrintsEveryStatus) {
  EXPECT_EQ(
      runScript(twoDisplays + "launch\nexpect model.status \"permissionRequired\"\ntrust on\n"
                              "do refreshDisplays\nexpect model.status \"unlocked\"\n"
                              "do toggleSelectedDisplayLock\nexpect model.status \"locked\"\n"
                              "hold option\nmove 5 5\nexpect model.status \"temporarilyUnlocked\"\n"
                              "dock edge top\nexpect model.status \"needsCheck\"\n"
                              "display detach 1\nexpect model.status \"targetMissing\"\n")
          .errors,
      "");
}

TEST(ShowTest, PrintsTheDockAfterItHasAppeared) {
  EXPECT_EQ(
      outputOf(twoDisplays + "move 2800 900\npush 0 60 times 5\nshow dock\nshow pointer\n"),
      R"json({"edge":"bottom","autohide":false,"display":2,"visible":true,"reveals":{"2":1}})json"
      "\n{\"x\":2800,\"y\":1079,\"display\":2}\n");
}

TEST(ShowTest, FindsTheScreenOfAnIdentifier) {
  EXPECT_EQ(outputOf(twoDisplays + "find \"BBBB\"\nfind 1\nfind \"bbbb\"\nfind \"\"\n"
                                   "find \"Optional(2)-1920.0-1080.0-Optional(8)-"
                                   "Optional(\\\"NSCalibratedRGBColorSpace\\\")\"\n"),
            "{\"index\":1}\n{\"index\":0}\n{\"index\":null}\n{\"index\":null}\n{\"index\":1}\n");
}

TEST(ShowTest, PrintsAnnouncementsExceptEmptyAndMalformedOnes) {
  ScriptBench bench;
  bench.session.application().launch();
  appkit::Accessibility::announce("");
  appkit::Accessibility::announce("first");
  appkit::Accessibility::announce("not \xC3 UTF-8");
  appkit::Accessibility::announce("\xED\xA0\x80");
  appkit::Accessibility::announce("Bureau \xC3\xA9");
  EXPECT_EQ(bench.run("show announcements"), std::nullopt);
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
