// Windows and menus in scripts.
#include <gtest/gtest.h>

#include "tests/script/ScriptRun.hpp"

namespace orvane::desk::script {
namespace {

const std::string running = twoDisplays + "trust on\nlaunch\n";

void expectHeld(const std::string& text) {
  const ScriptRun run = runScript(text);
  EXPECT_EQ(run.status, ScriptProgram::held) << run.errors;
}

TEST(WindowScriptTest, AnItemOfAPopUpButtonIsPicked) {
  expectHeld(running +
             "menu open\npress \"Settings\" in menu\n"
             "pick \"Language\" \"English\" in settings\n"
             "expect model.appLanguage \"english\"\n");
  EXPECT_EQ(problemOf(running + "menu open\npress \"Settings\" in menu\n"
                                "pick \"Language\" \"Klingon\" in settings\n"),
            "pick: there is no item \"Klingon\"");
}

TEST(WindowScriptTest, MissingControlsAndSurfacesAreProblems) {
  EXPECT_EQ(problemOf(running + "press \"Nothing\"\n"), "press: there is no control \"Nothing\"");
  EXPECT_EQ(problemOf(running + "press \"Nothing\" in main\n"),
            "press: there is no surface \"main\"");
  EXPECT_EQ(problemOf("trust on\nlaunch\nmenu open\n"),
            "menu open: there is no display with a menu bar");
  EXPECT_EQ(problemOf(twoDisplays + "menu open\n"),
            "menu open: there is no status item with a menu");
  EXPECT_EQ(problemOf(running + "close settings\n"), "close: there is no surface \"settings\"");
  EXPECT_EQ(problemOf(running + "show tree main\n"), "show: there is no surface \"main\"");
}

TEST(WindowScriptTest, ADisabledControlIsAProblem) {
  const std::string withoutDisplay = "launch\nreopen\nadvance 1\n";
  EXPECT_EQ(problemOf(withoutDisplay + "press \"Pin Dock\" in main\n"),
            "press: \"Pin Dock\" in main is disabled");
  const ScriptRun run = runScript(withoutDisplay + "press \"Pin Dock\"\necho not reached\n");
  EXPECT_EQ(run.status, ScriptProgram::broken);
  EXPECT_EQ(run.errors, "script.desk:4: press: \"Pin Dock\" is disabled\n");
  EXPECT_EQ(run.output, "");
}

TEST(WindowScriptTest, NthSelectsAmongControlsWithTheSameLabel) {
  const std::string twins =
      "display attach 1 frame=0,0,1920,1080 uuid=AAAA name=\"Twin\" main\n"
      "display attach 2 frame=1920,0,1920,1080 uuid=BBBB name=\"Twin\"\n"
      "display attach 3 frame=3840,0,1920,1080 uuid=CCCC name=\"Twin\"\n"
      "trust on\nlaunch\nreopen\nadvance 1\n";
  expectHeld(twins +
             "press \"Twin\" in main nth 3\nexpect model.selectedDisplayID \"CCCC\"\n"
             "press \"Twin\" in main\nexpect model.selectedDisplayID \"AAAA\"\n"
             "press \"Twin\" nth 2\nexpect model.selectedDisplayID \"BBBB\"\n"
             "press \"Twin\" nth 1\nexpect model.selectedDisplayID \"AAAA\"\n");
  EXPECT_EQ(problemOf(twins + "press \"Twin\" in main nth 4\n"),
            "press: there is no control \"Twin\" in main");
}

TEST(WindowScriptTest, HoverMovesToTheVisiblePartOfAControl) {
  std::string row;
  for (const char* const number : {"1", "2", "3", "4", "5", "6"}) {
    row += std::string("display attach ") + number + " frame=" + number +
           "0000,0,1920,1080 uuid=U" + number + " name=\"Card " + number + "\"\n";
  }
  row += "trust on\nlaunch\nreopen\nadvance 1\n";
  // The window of 700 points shows three cards and the beginning of the fourth.
  expectHeld(row + "hover \"Card 4\" in main\nexpect pointer.x 11254.5\n");
  const std::string away = "\"Card 6\" is scrolled out of sight";
  EXPECT_EQ(problemOf(row + "hover \"Card 6\" in main\n"), "hover: " + away);
  const ScriptRun run = runScript(row + "hover \"Card 6\"\necho not reached\n");
  EXPECT_EQ(run.status, ScriptProgram::broken);
  EXPECT_EQ(run.errors, "script.desk:11: hover: " + away + "\n");
  EXPECT_EQ(run.output, "");
  expectHeld(row + "hover \"Card 1\" in main\nscroll 600 0\nhover \"Card 6\" in main\n");
  EXPECT_EQ(problemOf(row + "hover \"Card 1\" in main\nscroll 600 0\nhover \"Card 1\"\n"),
            "hover: \"Card 1\" is scrolled out of sight");
  // An accessibility press does not require visibility.
  expectHeld(row + "press \"Card 6\" in main\nexpect model.selectedDisplayID \"U6\"\n");
}

TEST(WindowScriptTest, AWindowThatAModalWindowBlocksIsAProblem) {
  const std::string asked = twoDisplays +
                            "launch\nreopen\nadvance 1\ndo toggleSelectedDisplayLock\n"
                            "expect windows.1.surface \"alert\"\n";
  for (const char* const command :
       {R"(press "Settings" in main)", R"(pick "Language" "English" in main)", "close main",
        "minimise main", "drag main 30 0", R"(hover "Settings" in main)"}) {
    const std::string verb(command, std::string(command).find(' '));
    EXPECT_EQ(problemOf(asked + command + "\n"), verb + ": \"main\" is blocked by a modal window");
  }
  EXPECT_EQ(problemOf(asked + "press \"Settings\"\n"), "press: there is no control \"Settings\"");
  // The alert can be operated, and afterwards the window that it blocked.
  expectHeld(asked +
             "drag alert 20 0\nexpect windows.1.frame [740,460,480,400]\n"
             "close alert\nexpect windows.# 1\nclose main\nexpect windows.# 0\n");
}

TEST(WindowScriptTest, AWindowThatCannotBeMinimisedOrMovedIsAProblem) {
  EXPECT_EQ(problemOf(running + "menu open\npress \"Settings\" in menu\nminimise settings\n"),
            "minimise: \"settings\" cannot be minimised");
  // The press closes the menu.
  EXPECT_EQ(problemOf(running + "reopen\nmenu open\ndrag main 30 0\n"),
            "drag: \"main\" did not move");
  expectHeld(running + "reopen\ndrag main 0 0\ndrag main 0 1\ndrag main 1 0\n");
}

TEST(WindowScriptTest, TheWheelMovesTheCardsOfManyDisplays) {
  std::string text;
  for (const char* const number : {"0", "1", "2", "3", "4", "5"}) {
    text += std::string("display attach ") + number + " frame=" + number + "000,0,1000,800\n";
  }
  const std::string first = "expect tree.main.children.7.children.1.frame.0 ";
  const std::string last = "expect tree.main.children.7.children.5.frame.0 ";
  expectHeld(text +
             "trust on\nlaunch\nreopen\nadvance 1\nmove 500 360\n"
             "expect tree.main.children.7.role \"scroll area\"\n" +
             first + "235\n" + last + "995\n" +                      //
             "scroll 100 30\n" + first + "135\n" + last + "895\n" +  //
             "scroll -40 70\n" + first + "175\n" + last + "935\n" +  //
             "scroll 0 60\n" + first + "115\n" +                     //
             "scroll 0 -25\n" + first + "140\n" +                    //
             "scroll 0 0\n" + first + "140\n" +                      //
             "scroll -9999 0\n" + first + "235\n" +                  //
             "move 500 700\nscroll 100 30\n" + first + "235\n");
}

}  // namespace
}  // namespace orvane::desk::script
