// Scripts: line ends, added commands, leaked objects.
#include <gtest/gtest.h>

#include "Orvane/platform/Quartz.hpp"
#include "desk/script/ScriptProgram.hpp"
#include "tests/script/ScriptRun.hpp"

namespace orvane::desk::script {
namespace {

TEST(ScriptProgramTest, AnEmptyScriptHolds) {
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

TEST(ScriptProgramTest, RunsAddedCommands) {
  ScriptProgram::Settings settings;
  settings.commands.add({"menu open", "", [](ScriptContext& context, Arguments& arguments) {
                           context.output << "opened\n";
                           return arguments.finish();
                         }});
  EXPECT_EQ(runScript("menu open\n", settings).output, "opened\n");
  EXPECT_EQ(problemOf("menu burn\n", settings), "menu has no command \"burn\", only close, open");
}

TEST(ScriptProgramTest, ReportsLeakedObjects) {
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

}  // namespace
}  // namespace orvane::desk::script
