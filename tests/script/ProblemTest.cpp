// The messages for failed commands.
#include <initializer_list>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "desk/script/Problem.hpp"
#include "tests/script/ScriptBench.hpp"
#include "tests/script/ScriptRun.hpp"

namespace orvane::desk::script {
namespace {

TEST(ProblemTest, NamesTheCommandsOfAFamily) {
  EXPECT_EQ(problemOf("dock hide\n"), "dock has no command \"hide\", only autohide, edge");
  EXPECT_EQ(problemOf("links\n"), "links must be followed by one of accept, refuse");
}

TEST(ProblemTest, ShowsTheUsageOfACommand) {
  EXPECT_EQ(problemOf("move 1\n"), "move: Y is missing (move X Y)");
  EXPECT_EQ(problemOf("reset now\n"), "reset: unexpected \"now\"");
}

/// A script and the beginning of the message for its last line.
struct Case {
  const char* script;
  const char* problem;
};

void expectProblems(std::initializer_list<Case> cases) {
  for (const auto& [script, problem] : cases) {
    const std::string said = problemOf(script);
    EXPECT_TRUE(said.starts_with(problem)) << script << "\n" << said;
    EXPECT_EQ(runScript(script).status, ScriptProgram::broken) << script;
  }
}

TEST(ProblemTest, NamesProblemsWithWords) {
  expectProblems({{"echo \"a", "unterminated quote at column 6"},
                  {"echo \"\\q\"", "echo: unknown escape at column 7"},
                  {"echo \xFF", "malformed UTF-8 at column 6"},
                  {"echo \x01", "control character at column 6"},
                  {"\"\"", "unknown command \"\""}});
}

TEST(ProblemTest, NamesProblemsWithNumbers) {
  expectProblems({{"move nan 1", "move: X must be a decimal number, not \"nan\""},
                  {"move x y", "move: X must be a decimal number, not \"x\""},
                  {"move 1000000000.5 1", "move: X is too large: \"1000000000.5\""},
                  {"move 1000000000 y", "move: Y must be a decimal number"},
                  {"push 1 1 times 99999999999999999999", "push: N must be a whole number"},
                  {"push 1 1 times -1", "push: N must be a whole number from 0"},
                  {"push 1 1 times 1.5", "push: N must be a whole number from 0"},
                  {"push 1 1 times", "push: N is missing"},
                  {"push 1 1 every -1", "push: S must be from 0 to 3000000000 seconds"},
                  {"push 1 1 times 1000000000 every 1000", "push: that exceeds the limit"},
                  {"push 1 1 3", "push: unexpected \"3\""},
                  {"advance -1", "advance: S must be from 0 to 3000000000 seconds"},
                  {"advance 3000000000.000000001", "advance: S must be from 0 to 3000000000"},
                  {"advance 3000000000 x", "advance: unexpected \"x\""},
                  {"advance 1e3", "advance: S must be a decimal number of seconds"}});
}

TEST(ProblemTest, CutsALongWord) {
  const std::string kept = "a" + std::string(40, 'b') + "显示器显示器";
  EXPECT_EQ(problemOf("move " + kept + "显示器显示器 1\n"),
            "move: X must be a decimal number, not \"" + kept + "...\" (move X Y)");
}

TEST(ProblemTest, NamesProblemsWithDisplays) {
  expectProblems(
      {{"display attach 1", "display attach: frame=X,Y,W,H is missing"},
       {"display attach frame=0,0,1,1", "display attach: N is missing"},
       {"display attach one frame=0,0,1,1", "display attach: N must be a whole number"},
       {"display attach 1 frame=0,0,1", "display attach: frame must be X,Y,W,H"},
       {"display attach 1 frame=0,0,x,1", "display attach: frame must be a decimal number"},
       {"display attach 1 frame=0,0,0,1", "display attach: the frame of a display must not"},
       {"display attach 1 frame=0,0,1,1 uuid=", "display attach: uuid must not be empty"},
       {"display attach 1 frame=0,0,1,1 bits=9999", "display attach: bits must be"},
       {"display attach 1 frame=0,0,1,1 size=3", "display attach: unexpected \"size=3\""},
       {"display attach 1 frame=0,0,1,1 uuid=A uuid=B", "display attach: unexpected \"uuid=B\""},
       {"display attach 4294967296 frame=0,0,1,1", "display attach: N must be a whole number"},
       {"display detach 4294967295", "display detach: there is no display 4294967295"},
       {"display detach 1", "display detach: there is no display 1"},
       {"display frame 1 0,0,1,1", "display frame: there is no display 1"},
       {"display renumber 1 2", "display renumber: there is no display 1"},
       {"display main 7", "display main: there is no display 7"},
       {"display done", "display done: no group of changes is open"},
       {"display together\ndisplay together", "display together: "}});
}

TEST(ProblemTest, NamesProblemsWithTheSystem) {
  expectProblems({{"trust maybe", "trust: on|off must be one of off, on, not \"maybe\""},
                  {"tap disabled", "tap disabled: timeout|userinput|silently|forgood is missing"},
                  {"dock edge", "dock edge: VALUE is missing"},
                  {"dock edge left right", "dock edge: unexpected \"right\""},
                  {"locale", "locale: preferred=A,B,... or current=C is missing"},
                  {"locale region=x current=y", "locale: unexpected \"region=x\""},
                  {"defaults set a text b", "defaults set: the type must be one of"},
                  {"defaults set a bool maybe", "defaults set: VALUE must be one of"},
                  {"defaults set a number x", "defaults set: VALUE must be a decimal number"},
                  {"defaults set a string", "defaults set: VALUE is missing"},
                  {"login error", "login error: \"TEXT\"|none is missing"},
                  {"accent 1,2", "accent: B is missing"},
                  {"accent 1,2,", "accent: B must be a whole number from 0 to 255, not \"\""},
                  {"accent 1,2,3,4", "accent: unexpected \"4\""},
                  {"accent 1,2,256", "accent: B must be a whole number from 0 to 255"},
                  {"wallpaper green", "wallpaper: the wallpaper must be one of"}});
}

TEST(ProblemTest, NamesProblemsWithTheApplication) {
  expectProblems({{"terminate", "terminate: the application is not running"},
                  {"crash", "crash: the application is not running"},
                  {"reopen", "reopen: the application is not running"},
                  {"do toggleLock", "do: the application is not running"},
                  {"show model", "show: the application is not running"},
                  {"expect model.status \"locked\"", "expect: the application is not running"},
                  {"do", "do: OPERATION is missing"},
                  {"do fly", "do: there is no operation \"fly\", only appLanguage, "},
                  {"launch\ndo toggleLock now", "do: unexpected \"now\""},
                  {"launch\ndo selectDisplay", "do: \"ID\" is missing"},
                  {"launch\ndo appLanguage french", "do: the value must be one of system, "}});
}

TEST(ProblemTest, NamesProblemsWithInspection) {
  expectProblems(
      {{"show", "show: THING is missing"},
       {"show weather", "show: there is no \"weather\" to show, only announcements, clock, "},
       {"find", "find: \"IDENTIFIER\" is missing"},
       {"expect clock.now", "expect: VALUE is missing"},
       {"expect clock.now soon", "expect: VALUE is not JSON: soon"},
       {"expect clock..now 1", "expect: \"clock..now\" is not a path"},
       {"expect weather.now 1", "expect: there is no \"weather\" to show"},
       {"hold", "hold: KEY is missing"},
       {"cursor", "cursor: held|free is missing"},
       {"hold fn", "hold: KEY must be one of option, control, shift, command"},
       {"event 1 1 fn", "event: KEY must be one of"},
       {"picture", "picture: FILE is missing"},
       {"picture a scale", "picture: S is missing"},
       {"picture a scale 0", "picture: the scale must be greater than 0"},
       {"picture a main big", "picture: unexpected \"big\""},
       {"picture a", "picture: no pictures can be drawn here"}});
}

TEST(ProblemTest, ChangesNothingWhenTheArgumentsAreWrong) {
  ScriptBench bench;
  for (const char* const line :
       {"display attach 1 frame=0,0,9,9 color=red", "trust on please", "dock edge left now",
        "defaults set a string b c", "advance 1 2", "launch now", "accent 1,2,300"}) {
    EXPECT_NE(bench.run(line), std::nullopt) << line;
  }
  const Machine& machine = bench.session.machine();
  EXPECT_TRUE(machine.displays.isEmpty());
  EXPECT_FALSE(machine.permission.isTrusted());
  EXPECT_EQ(machine.dock.edge(), DockEdge::bottom);
  EXPECT_TRUE(machine.userDefaults.values().empty());
  EXPECT_EQ(machine.clock.now(), 0);
  EXPECT_FALSE(machine.process.isRunning());
  EXPECT_EQ(machine.appearance.accent, std::nullopt);
}

/// Lines of random words of the language and random bytes.
RC_GTEST_PROP(ProblemTest, NonsenseCausesOnlyProblems, ()) {
  const auto word = rc::gen::oneOf(
      rc::gen::element<std::string>(
          "display", "attach", "detach", "frame=0,0,800,600", "1", "2", "main", "together", "done",
          "launch", "crash", "do", "toggleLock", "toggleHideDockOnAllDisplays", "trust", "on",
          "off", "move", "push", "900", "-5.5", "times", "every", "0.1", "burst", "expect", "show",
          "guard", "guard.zones.#", "model", "dock", "edge", "left", "reset", "advance", "hold",
          "cursor", "free", "held", "option", "event", "renumber", "frame", "0,0,5,5", "tap",
          "disabled", "timeout", "[", "{}", "\"", "#"),
      rc::gen::arbitrary<std::string>());
  const auto line = rc::gen::map(rc::gen::container<std::vector<std::string>>(word),
                                 [](const std::vector<std::string>& words) {
                                   std::string text;
                                   for (const std::string& one : words) {
                                     text += one + " ";
                                   }
                                   return text;
                                 });
  ScriptProgram::Settings settings;
  settings.limits = {.repetitions = 1000,
                     .clockNanoseconds = 1000 * Clock::nanosecondsPerSecond,
                     .allowsFiles = false};
  Session session;
  std::ostringstream output;
  int failures = 0;
  ScriptContext context{.session = session,
                        .inspectables = settings.inspectables,
                        .output = output,
                        .limits = settings.limits,
                        .pictureWriter = {},
                        .expectationFailed = [&](const std::string&) { ++failures; }};
  for (const std::string& one : *rc::gen::container<std::vector<std::string>>(line)) {
    const Problem problem = settings.commands.run(one, context);
    RC_ASSERT(problem.value_or("none") != "");
  }
  RC_ASSERT(session.machine().faults.count() == 0U);
}

}  // namespace
}  // namespace orvane::desk::script
