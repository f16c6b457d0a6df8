// Whole scripts: files, line ends, determinism, what the application leaves behind.
#include <gtest/gtest.h>

#include "Orvane/platform/Quartz.hpp"
#include "desk/script/ScriptProgram.hpp"
#include "tests/script/ScriptRun.hpp"

namespace orvane::desk::script {
namespace {

TEST(ScriptProgramTest, TakesAnEmptyScriptForOneThatHolds) {
  EXPECT_EQ(runScript("").status, ScriptProgram::held);
  EXPECT_EQ(runScript("\n# nothing\n\n").status, ScriptProgram::held);
}

TEST(ScriptProgramTest, ReadsALastLineWithoutItsEnd) {
  EXPECT_EQ(runScript("echo a\necho b").output, "a\nb\n");
}

TEST(ScriptProgramTest, ReadsFilesOfOtherSystems) {
  EXPECT_EQ(runScript("\xEF\xBB\xBF"
                      "echo a\r\n\r\necho b # c\r\n")
                .output,
            "a\nb\n");
  EXPECT_EQ(runScript("echo a\n\xEF\xBB\xBF"
                      "echo b\n")
                .status,
            ScriptProgram::broken);
}

TEST(ScriptProgramTest, GivesTheSameBytesForTheSameScript) {
  const std::string script =
      pinned +
      "move 2800 900\npush 0 60 times 400 every 0.01\nshow guard\nshow messages\nshow model\n"
      "display frame 2 1920,100,1280,800\nshow displays\nshow dock\nshow pointer\nshow clock\n"
      "terminate\nlaunch\nshow counters\nshow defaults\nexpect clock.now 0\n";
  const ScriptRun first = runScript(script);
  const ScriptRun second = runScript(script);
  EXPECT_EQ(first.status, ScriptProgram::failed);
  EXPECT_EQ(first.output, second.output);
  EXPECT_EQ(first.errors, second.errors);
  EXPECT_NE(first.output, "");
}

TEST(ScriptProgramTest, RunsOtherPeoplesCommands) {
  ScriptProgram::Settings settings;
  settings.commands.add({"menu open", "", [](ScriptContext& context, Arguments& arguments) {
                           context.output << "opened\n";
                           return arguments.finish();
                         }});
  EXPECT_EQ(runScript("menu open\n", settings).output, "opened\n");
  EXPECT_EQ(problemOf("menu burn\n", settings), "menu has no command \"burn\", only close, open");
}

TEST(ScriptProgramTest, TellsWhatWasLeftBehind) {
  ScriptProgram::Settings settings;
  settings.commands.add({"leak", "", [](ScriptContext&, Arguments& arguments) {
                           CFStringCreateWithCString(kCFAllocatorDefault, "lost",
                                                     kCFStringEncodingUTF8);
                           return arguments.finish();
                         }});
  const ScriptRun run = runScript("leak\n", settings);
  EXPECT_EQ(run.status, ScriptProgram::held);
  EXPECT_NE(run.errors.find("script.desk:1: not released: "), std::string::npos) << run.errors;
}

TEST(ScriptProgramTest, ReadsFilesOneAfterTheOther) {
  std::istringstream input("echo from the input\nadvance 5\n");
  std::ostringstream output;
  std::ostringstream errors;
  ScriptProgram program({}, input, output, errors);
  EXPECT_EQ(program.runFiles({"-", "/no/such/file.desk", "-"}), ScriptProgram::broken);
  EXPECT_EQ(output.str(), "from the input\n");
  EXPECT_EQ(errors.str(),
            "/no/such/file.desk:0: the file cannot be read: No such file or directory\n");
}

}  // namespace
}  // namespace orvane::desk::script
