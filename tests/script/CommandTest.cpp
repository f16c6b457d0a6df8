// The effects of commands that scripts cannot observe.
#include <gtest/gtest.h>

#include "tests/script/ScriptBench.hpp"
#include "tests/script/ScriptRun.hpp"

namespace orvane::desk::script {
namespace {

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

}  // namespace
}  // namespace orvane::desk::script
