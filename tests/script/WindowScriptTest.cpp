// Windows and menus as a script operates them and looks at them.
#include <gtest/gtest.h>

#include "tests/script/ScriptRun.hpp"

namespace orvane::desk::script {
namespace {

const std::string running = twoDisplays + "trust on\nlaunch\n";

void expectHeld(const std::string& text) {
  const ScriptRun run = runScript(text);
  EXPECT_EQ(run.status, ScriptProgram::held) << run.errors;
}

TEST(WindowScriptTest, ThereIsAnIconAndNoWindowAtLaunch) {
  expectHeld(running +
             "expect windows.# 0\nexpect menu.open false\nexpect icon.symbol \"lock.open\"\n"
             "expect icon.size [18,18]\nexpect icon.pointSize 16\nexpect icon.template true\n"
             "expect icon.accessibilityDescription \"Orvane\"\n");
}

TEST(WindowScriptTest, TheMenuShowsWhatTheModelSays) {
  expectHeld(running +
             "menu open\nexpect menu.open true\nexpect menu.rows.# 12\n"
             "expect menu.rows.1.kind \"separator\"\nexpect menu.rows.5.kind \"header\"\n"
             "expect menu.rows.3.title \"Pin Dock\"\nexpect menu.rows.3.isOn false\n"
             "expect menu.rows.3.symbol \"lock\"\nexpect menu.rows.6.isSelected true\n"
             "expect menu.rows.6.isOn null\n"
             "press \"Pin Dock\" in menu\nexpect menu.open true\nexpect menu.rows.3.isOn true\n"
             "expect model.status \"locked\"\nexpect icon.symbol \"lock.fill\"\n"
             "menu close\nexpect menu.open false\n");
}

TEST(WindowScriptTest, TheSettingsAreAChildOfTheMainPanelAndGoWithIt) {
  expectHeld(running +
             "menu open\npress \"Settings\" in menu\nexpect menu.open false\n"
             "expect windows.0.surface \"main\"\nexpect windows.1.surface \"settings\"\n"
             "expect windows.1.parent \"main\"\nexpect windows.1.key true\n"
             "expect windows.0.styleMask 4\nexpect windows.1.styleMask 0\n"
             "expect windows.0.cornerRadius 24\nexpect windows.1.cornerRadius 28\n"
             "expect windows.0.collectionBehavior 6\nexpect windows.0.opaque false\n"
             "drag main 30 -10\nexpect windows.0.frame [640,315,700,516]\n"
             "expect windows.1.frame [780,335,420,476]\n"
             "close main\nexpect windows.# 0\n");
}

TEST(WindowScriptTest, AMinimisedPanelComesBackWhenTheApplicationIsOpenedAgain) {
  expectHeld(running +
             "reopen\nminimise main\nexpect windows.0.miniaturised true\n"
             "expect windows.0.visible false\nreopen\nexpect windows.0.visible true\n");
}

TEST(WindowScriptTest, AnItemOfAPopUpButtonIsPicked) {
  expectHeld(running +
             "menu open\npress \"Settings\" in menu\n"
             "pick \"Language\" \"English\" in settings\n"
             "expect model.appLanguage \"english\"\n");
  EXPECT_EQ(complaintOf(running + "menu open\npress \"Settings\" in menu\n"
                                  "pick \"Language\" \"Klingon\" in settings\n"),
            "pick: there is no item \"Klingon\"");
}

TEST(WindowScriptTest, TheAlertLeadsToTheGuideAndTheGuideToTheLock) {
  expectHeld(twoDisplays +
             "launch\ndo refreshDisplays\ndo toggleSelectedDisplayLock\n"
             "expect windows.0.surface \"alert\"\nexpect windows.0.modal true\n"
             "expect windows.0.level 8\nexpect windows.0.styleMask 3\n"
             "key return\nexpect windows.# 1\nexpect windows.0.surface \"system\"\n"
             "expect opened.# 1\n"
             "advance 2\nexpect windows.1.surface \"guide\"\nexpect windows.1.level 25\n"
             "expect windows.1.collectionBehavior 131346\nexpect windows.1.key false\n"
             "trust on\nadvance 1\nexpect guide.state \"success\"\nexpect guide.visible true\n"
             "expect model.status \"locked\"\nadvance 1.5\nexpect guide.visible false\n");
}

TEST(WindowScriptTest, EscapeDeclinesTheAlert) {
  expectHeld(twoDisplays +
             "launch\ndo refreshDisplays\ndo toggleSelectedDisplayLock\nkey escape\n"
             "expect windows.# 0\nexpect opened.# 0\nadvance 5\nexpect windows.# 0\n");
}

TEST(WindowScriptTest, AClickOnTheStatusItemOpensItsMenu) {
  expectHeld(running +
             "click 1714 12\nexpect menu.open true\nclick 500 500\nexpect menu.open false\n");
}

TEST(WindowScriptTest, QuittingFromTheMenuEndsTheApplication) {
  expectHeld(running +
             "menu open\npress \"Quit\" in menu\nexpect icon.symbol null\nlaunch\n"
             "expect icon.symbol \"lock.open\"\n");
}

TEST(WindowScriptTest, WhatIsNotThereOrDisabledIsSaid) {
  EXPECT_EQ(complaintOf(running + "press \"Nothing\"\n"), "press: there is no control \"Nothing\"");
  EXPECT_EQ(complaintOf(running + "press \"Nothing\" in main\n"),
            "press: there is no surface \"main\"");
  EXPECT_EQ(complaintOf("trust on\nlaunch\nmenu open\n"),
            "menu open: there is no display with a menu bar");
  EXPECT_EQ(complaintOf(twoDisplays + "menu open\n"),
            "menu open: there is no status item with a menu");
  EXPECT_EQ(complaintOf(running + "close settings\n"), "close: there is no surface \"settings\"");
  EXPECT_EQ(complaintOf(running + "show tree main\n"), "show: there is no surface \"main\"");
}

}  // namespace
}  // namespace orvane::desk::script
