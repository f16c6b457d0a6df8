// The whole tour as a person takes it.
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/canvas/PngFile.hpp"
#include "showroom/tour/RunTour.hpp"
#include "tests/support/BytesOf.hpp"

namespace orvane::showroom {
namespace {

class RunTourTest : public testing::Test {
 protected:
  std::filesystem::path folder =
      std::filesystem::path(testing::TempDir()) /
      (std::string("orvane-tour-") + testing::UnitTest::GetInstance()->current_test_info()->name());

  RunTourTest() { std::filesystem::remove_all(folder); }
  ~RunTourTest() override { std::filesystem::remove_all(folder); }

  static std::map<std::string, std::string> filesIn(const std::filesystem::path& directory) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
      files[entry.path().filename().string()] = bytesOf(entry.path());
    }
    return files;
  }
};

TEST_F(RunTourTest, TellsOneLineForEveryPictureAndEndsWell) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(runTour((folder / "new" / "album").string()), 0);
  std::istringstream lines(testing::internal::GetCapturedStdout());
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    const std::string number = line.substr(0, 2);
    EXPECT_EQ(std::stoi(number), count + 1) << line;
    EXPECT_EQ(line.substr(2, 2), "  ");
    EXPECT_EQ(line.back(), '.') << line;
    const desk::SurfacePointer picture =
        desk::readPng(folder / "new" / "album" / (number + ".png"));
    ASSERT_TRUE(picture) << line;
    EXPECT_EQ(cairo_image_surface_get_width(picture.get()), 1440);
  }
  EXPECT_GE(count, 20);
  const std::vector<std::string> kept{"menu.png", "main-panel.png", "settings-panel.png"};
  const auto files = filesIn(folder / "new" / "album");
  EXPECT_EQ(files.size(), static_cast<std::size_t>(count) + kept.size());
  for (const std::string& name : kept) {
    EXPECT_TRUE(files.contains(name)) << name;
  }
}

TEST_F(RunTourTest, IsTheSameToTheByteEachTime) {
  testing::internal::CaptureStdout();
  ASSERT_EQ(runTour((folder / "first").string()), 0);
  const std::string firstLines = testing::internal::GetCapturedStdout();
  testing::internal::CaptureStdout();
  ASSERT_EQ(runTour((folder / "second").string()), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), firstLines);
  const auto first = filesIn(folder / "first");
  const auto second = filesIn(folder / "second");
  ASSERT_EQ(first.size(), second.size());
  for (const auto& [name, bytes] : first) {
    EXPECT_TRUE(second.at(name) == bytes) << name;
  }
}

TEST_F(RunTourTest, SaysWhenItCannotWrite) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(runTour("/dev/null/album"), 2);
  EXPECT_NE(testing::internal::GetCapturedStderr().find("/dev/null/album"), std::string::npos);
}

}  // namespace
}  // namespace orvane::showroom
