// The effects of commands, observed by scripts.
#include <gtest/gtest.h>

#include "tests/script/ScriptBench.hpp"
#include "tests/script/ScriptRun.hpp"

namespace orvane::desk::script {
namespace {

/// Empty when all expectations of the script hold.
std::string failuresOf(const std::string& text) {
  return runScript(text).errors;
}

TEST(CommandTest, ResetSwitchesOnANewMachine) {
  EXPECT_EQ(failuresOf(pinned +
                       "advance 5\ndock edge left\nreset\nexpect displays []\nexpect clock.now 0\n"
                       "expect dock.edge \"bottom\"\nexpect defaults {}\nexpect guard.taps 0\n" +
                       twoDisplays + "launch\nexpect model.hasAccessibilityPermission false\n"),
            "");
}

TEST(CommandTest, OnlyAdvanceAndPushMoveTime) {
  EXPECT_EQ(failuresOf(pinned +
                       "expect clock.now 0\nadvance 1.5\nexpect clock.now 1.5\n"
                       "push 1 1 times 5 every 0.25\nexpect clock.now 2.5\n"
                       "push 1 1 times 5\nexpect clock.now 2.5\nburst 9 5 5\nexpect clock.now 2.5\n"
                       "push 1 1 times 0 every 9\nexpect clock.now 2.5\n"
                       "advance 0.000000001\nexpect clock.now 2.500000001\n"),
            "");
}

TEST(CommandTest, DisplaysAreChangedAsAsked) {
  EXPECT_EQ(failuresOf(twoDisplays +
                       "display frame 2 1920,-20.5,800,600\n"
                       "expect displays.1.frame [1920,-20.5,800,600]\n"
                       "expect displays.0.isMain true\ndisplay main 2\n"
                       "expect displays.0.isMain false\nexpect displays.1.isMain true\n"
                       "display renumber 2 9\nexpect displays.1.matchingIdentifiers.0 \"9\"\n"
                       "display detach 1\nexpect displays.# 1\nexpect displays.0.id \"BBBB\"\n"),
            "");
}

TEST(CommandTest, AGroupOfChangesIsOneChange) {
  EXPECT_EQ(failuresOf("display together\n" + twoDisplays +
                       "display main 2\nexpect counters.displayChanges 0\ndisplay done\n"
                       "expect counters.displayChanges 1\n"
                       "display together\ndisplay done\nexpect counters.displayChanges 1\n"),
            "");
}

TEST(CommandTest, TheLocaleIsSetInPartsOrWhole) {
  EXPECT_EQ(failuresOf("display attach 3 frame=0,0,800,600\nlocale preferred=fr-FR,zh_TW\n"
                       "expect displays.0.name \"顯示器 3\"\nlocale preferred=fr-FR\n"
                       "expect displays.0.name \"Display 3\"\nlocale current=zh_CN\n"
                       "expect displays.0.name \"显示器 3\"\n"),
            "");
}

TEST(CommandTest, DefaultsAreSetAndRemovedWhetherItRunsOrNot) {
  EXPECT_EQ(
      failuresOf("defaults set temporaryUnlockModifier string shift\nlaunch\n"
                 "expect model.temporaryUnlockModifier \"shift\"\n"
                 "defaults remove temporaryUnlockModifier\nexpect defaults {}\n"
                 "defaults set a bool yes\ndefaults set b bool 0\ndefaults set c bool false\n"
                 "defaults set d bool on\ndefaults set e number -0.5\ndefaults set f string 7\n"
                 "expect defaults {\"a\":true,\"b\":false,\"c\":false,\"d\":true,\"e\":-0.5,"
                 "\"f\":\"7\"}\ndefaults remove nothing\n"),
      "");
}

TEST(CommandTest, TheLoginItemTakesEveryStateAndFails) {
  EXPECT_EQ(
      failuresOf("launch\nlogin status enabled\ndo refreshLaunchAtLoginStatus\n"
                 "expect model.launchAtLoginEnabled true\nlogin status requiresApproval\n"
                 "do refreshLaunchAtLoginStatus\nexpect model.launchAtLoginRequiresApproval true\n"
                 "login status notFound\nlogin error \"No\"\ndo setLaunchAtLoginEnabled on\n"
                 "expect model.launchAtLoginErrorMessage \"No\"\nlogin error none\n"
                 "do setLaunchAtLoginEnabled on\nexpect model.launchAtLoginEnabled true\n"
                 "expect model.launchAtLoginErrorMessage null\nlogin status notRegistered\n"
                 "do refreshLaunchAtLoginStatus\nexpect model.launchAtLoginEnabled false\n"),
      "");
}

TEST(CommandTest, TheAppearanceIsSet) {
  ScriptBench bench;
  const Appearance& appearance = bench.session.machine().appearance;
  for (const char* const line : {"appearance dark", "accent 1,20,255", "wallpaper busy",
                                 "motion reduced", "transparency reduced", "contrast increased"}) {
    EXPECT_EQ(bench.interpreter.run(line), std::nullopt);
  }
  EXPECT_TRUE(appearance.isDark);
  EXPECT_EQ(appearance.accent, (Appearance::Accent{1, 20, 255}));
  EXPECT_EQ(appearance.wallpaper, Appearance::Wallpaper::busy);
  EXPECT_TRUE(appearance.reducesMotion);
  EXPECT_TRUE(appearance.reducesTransparency);
  EXPECT_TRUE(appearance.increasesContrast);
  for (const char* const line : {"appearance light", "wallpaper default", "motion full",
                                 "transparency full", "contrast normal"}) {
    EXPECT_EQ(bench.interpreter.run(line), std::nullopt);
  }
  EXPECT_FALSE(appearance.isDark);
  EXPECT_EQ(appearance.wallpaper, Appearance::Wallpaper::standard);
  EXPECT_FALSE(appearance.reducesMotion);
  EXPECT_FALSE(appearance.reducesTransparency);
  EXPECT_FALSE(appearance.increasesContrast);
}

TEST(CommandTest, EveryOperationOfTheModelCanBeCalled) {
  EXPECT_EQ(
      failuresOf(pinned +
                 "do toggleLock\nexpect guard.running false\ndo toggleLock\n"
                 "expect guard.running true\ndo selectDisplay \"BBBB\"\n"
                 "expect guard.lockedDisplayIdentifier \"BBBB\"\n"
                 "do toggleHideDockOnAllDisplays\nexpect guard.blocksAllDisplays true\n"
                 "do hidesDockOnAllDisplays off\nexpect guard.blocksAllDisplays false\n"
                 "do hidesDockOnAllDisplays on\nexpect guard.zones.# 2\n"
                 "do temporaryUnlockModifier command\nexpect guard.overrideModifier \"command\"\n"
                 "do appLanguage chinese\nexpect model.appLanguage \"chinese\"\n"
                 "do openAccessibilitySettings\ndo openPrivacyPolicy\ndo openSupportEmail\n"
                 "expect opened.# 3\nterminate\nlaunch\ndo restoreLockIfNeeded\n"
                 "expect guard.taps 1\n"),
      "");
}

TEST(CommandTest, AnEventMovesNoPointer) {
  EXPECT_EQ(
      failuresOf(pinned +
                 "hold option\nmove 50 60\nburst 3 2800 1075\nburst 2 2800 1075 option\n"
                 "expect guard.blockedCount 3\nexpect pointer {\"x\":50,\"y\":60,\"display\":1}\n"),
      "");
}

TEST(CommandTest, EveryCommandComesToRest) {
  EXPECT_EQ(failuresOf(pinned + "burst 1 2800 1075\nexpect messages.# 2\nburst 179 2800 1075\n"
                                "expect guard.taps 0\n"),
            "");
}

TEST(CommandTest, APictureIsRequestedAsWritten) {
  std::vector<std::string> requests;
  ScriptProgram::Settings settings;
  settings.pictureWriter = [&requests](const Session&, const PictureRequest& request) -> Problem {
    requests.push_back(request.file + "|" + request.surface.value_or("-") + "|" +
                       std::to_string(request.scale));
    return request.file == "bad" ? Problem("the disk is full") : std::nullopt;
  };
  EXPECT_EQ(runScript("picture a.png\npicture \"b c.png\" menu\npicture d.png scale 2\n"
                      "picture e.png main scale 0.5\n",
                      settings)
                .errors,
            "");
  EXPECT_EQ(requests, (std::vector<std::string>{"a.png|-|1.000000", "b c.png|menu|1.000000",
                                                "d.png|-|2.000000", "e.png|main|0.500000"}));
  EXPECT_EQ(problemOf("picture bad\n", settings), "picture: the disk is full");
  settings.limits.allowsFiles = false;
  EXPECT_EQ(problemOf("picture a.png\n", settings), "picture: files must not be written");
}

}  // namespace
}  // namespace orvane::desk::script
