// Scripts: line ends, added commands, leaked objects, the effects of commands that scripts cannot
// observe, and what `show` prints, byte for byte.
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/Accessibility.hpp"
#include "desk/script/ScriptProgram.hpp"
#include "tests/script/ScriptBench.hpp"
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

TEST(CommandTest, TheAppearanceIsSet) {
  ScriptBench bench;
  const Appearance& appearance = bench.session.machine().appearance;
  for (const char* const line : {"appearance dark", "accent 1,20,255", "wallpaper busy",
                                 "motion reduced", "transparency reduced", "contrast increased"}) {
    EXPECT_EQ(bench.run(line), std::nullopt);
  }
  EXPECT_TRUE(appearance.isDark);
  EXPECT_EQ(appearance.accent, (Appearance::Accent{1, 20, 255}));
  EXPECT_EQ(appearance.wallpaper, Appearance::Wallpaper::busy);
  EXPECT_TRUE(appearance.reducesMotion);
  EXPECT_TRUE(appearance.reducesTransparency);
  EXPECT_TRUE(appearance.increasesContrast);
  for (const char* const line : {"appearance light", "wallpaper default", "motion full",
                                 "transparency full", "contrast normal"}) {
    EXPECT_EQ(bench.run(line), std::nullopt);
  }
  EXPECT_FALSE(appearance.isDark);
  EXPECT_EQ(appearance.wallpaper, Appearance::Wallpaper::standard);
  EXPECT_FALSE(appearance.reducesMotion);
  EXPECT_FALSE(appearance.reducesTransparency);
  EXPECT_FALSE(appearance.increasesContrast);
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
