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

TEST(ShowTest, PrintsANewMachine) {
  EXPECT_EQ(outputOf("show displays\nshow messages\nshow defaults\nshow opened\n"),
            "[]\n[]\n{}\n[]\n");
  EXPECT_EQ(
      outputOf("show dock\n"),
      R"json({"edge":"bottom","autohide":false,"display":null,"visible":false,"reveals":{}})json"
      "\n");
  EXPECT_EQ(outputOf("show pointer\n"), "{\"x\":0,\"y\":0,\"display\":null}\n");
  EXPECT_EQ(outputOf("show clock\n"), "{\"media\":1000,\"now\":0,\"calendar\":788918400}\n");
  EXPECT_EQ(
      outputOf("show guard\n"),
      R"json({"running":false,"zones":[],"blockedCount":0,"isTemporarilyUnlocked":false,)json"
      R"json("blocksAllDisplays":false,"lockedDisplayIdentifier":"","overrideModifier":"option",)json"
      R"json("observing":false,"taps":0,"tapEnabled":false})json"
      "\n");
}

TEST(ShowTest, PrintsDisplays) {
  EXPECT_EQ(
      outputOf("display attach 1 frame=0,0,1920,1080 name=\"Left\"\n"
               "display attach 20 frame=-1280.5,56,1280.5,1024 uuid=BBBB bits=10 "
               "colorspace=\"P3\" builtin main\nshow displays\n"),
      R"json([{"id":"Optional(1)-1920.0-1080.0-Optional(8)-Optional(\"NSCalibratedRGBColorSpace\")",)json"
      R"json("matchingIdentifiers":["1",)json"
      R"json("Optional(1)-1920.0-1080.0-Optional(8)-Optional(\"NSCalibratedRGBColorSpace\")"],)json"
      R"json("name":"Left","frame":[0,0,1920,1080],"cgFrame":[0,0,1920,1080],)json"
      R"json("isMain":false,"isBuiltIn":false},)json"
      R"json({"id":"BBBB","matchingIdentifiers":["20","BBBB",)json"
      R"json("Optional(20)-1280.5-1024.0-Optional(10)-Optional(\"P3\")"],)json"
      R"json("name":"Display","frame":[-1280.5,56,1280.5,1024],"cgFrame":[-1280.5,0,1280.5,1024],)json"
      R"json("isMain":true,"isBuiltIn":true}])json"
      "\n");
}

TEST(ShowTest, PrintsAGuardAtWork) {
  EXPECT_EQ(
      outputOf(pinned + "advance 0.25\nburst 2 2800 1075\nshow guard\nshow messages\n"),
      R"json({"running":true,"zones":[{"rect":[1920,1068,1920,12],"nudge":[0,-12]}],)json"
      R"json("blockedCount":2,"isTemporarilyUnlocked":false,"blocksAllDisplays":false,)json"
      R"json("lockedDisplayIdentifier":"AAAA","overrideModifier":"option","observing":true,)json"
      R"json("taps":1,"tapEnabled":true})json"
      "\n"
      R"json([{"at":1000,"text":"Mouse guard started. Trigger zones: 1"},)json"
      R"json({"at":1000.25,"text":"Blocked Dock trigger 1 times"}])json"
      "\n");
}

TEST(ShowTest, PrintsTheModel) {
  EXPECT_EQ(
      outputOf("advance 7\n" + pinned + "advance 0.000123\ndo refreshDisplays\nshow model\n"),
      R"json({"selectedDisplayID":"AAAA","hasAccessibilityPermission":true,)json"
      R"json("isTemporarilyUnlocked":false,"lastRestoreSucceeded":null,"lastCheckedAt":0.000123,)json"
      R"json("appLanguage":"system","temporaryUnlockModifier":"option",)json"
      R"json("hidesDockOnAllDisplays":false,"launchAtLoginEnabled":false,)json"
      R"json("launchAtLoginRequiresApproval":false,"launchAtLoginErrorMessage":null,)json"
      R"json("status":"locked"})json"
      "\n");
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

TEST(ShowTest, PrintsDefaultsOfEveryTypeByKey) {
  EXPECT_EQ(outputOf("defaults set b bool on\ndefaults set a number 2.50\n"
                     "defaults set c string \"x \\\"y\\\"\"\nshow defaults\n"),
            R"json({"a":2.5,"b":true,"c":"x \"y\""})json"
            "\n");
}

TEST(ShowTest, PrintsTheDockWhereItCameUp) {
  EXPECT_EQ(
      outputOf(twoDisplays + "move 2800 900\npush 0 60 times 5\nshow dock\nshow pointer\n"),
      R"json({"edge":"bottom","autohide":false,"display":2,"visible":true,"reveals":{"2":1}})json"
      "\n{\"x\":2800,\"y\":1079,\"display\":2}\n");
}

TEST(ShowTest, PrintsWhatWasOpened) {
  EXPECT_EQ(
      outputOf("launch\nlinks refuse x-apple.systempreferences:com.apple.Desktop\n"
               "do openDesktopAndDockSettings\nshow opened\n"),
      R"json([{"url":"x-apple.systempreferences:com.apple.Desktop-Settings.extension",)json"
      R"json("accepted":false},)json"
      R"json({"url":"x-apple.systempreferences:com.apple.preference.dock","accepted":true}])json"
      "\n");
}

TEST(ShowTest, PrintsWhereAnEventComesOut) {
  EXPECT_EQ(outputOf(pinned + "event 2800 1075\nevent 2800.5 1075 option\nevent 100 1075\n"),
            "{\"x\":2800,\"y\":1063}\n{\"x\":2800.5,\"y\":1075}\n{\"x\":100,\"y\":1075}\n");
}

TEST(ShowTest, FindsTheScreenOfAnIdentifier) {
  EXPECT_EQ(outputOf(twoDisplays + "find \"BBBB\"\nfind 1\nfind \"bbbb\"\nfind \"\"\n"
                                   "find \"Optional(2)-1920.0-1080.0-Optional(8)-"
                                   "Optional(\\\"NSCalibratedRGBColorSpace\\\")\"\n"),
            "{\"index\":1}\n{\"index\":0}\n{\"index\":null}\n{\"index\":null}\n{\"index\":1}\n");
}

TEST(ShowTest, FindsTheFirstOfTwoThatAnswer) {
  EXPECT_EQ(outputOf("display attach 1 frame=0,0,800,600 nonumber\n"
                     "display attach 2 frame=800,0,800,600 nonumber\n"
                     "find \"nil-800.0-600.0-Optional(8)-"
                     "Optional(\\\"NSCalibratedRGBColorSpace\\\")\"\n"),
            "{\"index\":0}\n");
}

TEST(ShowTest, PrintsWhatWasAnnouncedAndNothingThatCannotBeSpoken) {
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
