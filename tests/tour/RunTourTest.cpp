// The whole tour, twice.
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

TEST_F(RunTourTest, WritesACaptionForEveryPictureAndTheSameEachTime) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(runTour((folder / "new" / "pictures").string()), 0);
  const std::string captions = testing::internal::GetCapturedStdout();
  std::istringstream lines(captions);
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    const std::string number = line.substr(0, 2);
    EXPECT_EQ(std::stoi(number), count + 1) << line;
    EXPECT_EQ(line.substr(2, 2), "  ");
    EXPECT_EQ(line.back(), '.') << line;
    const desk::SurfacePointer picture =
        desk::readPng(folder / "new" / "pictures" / (number + ".png"));
    ASSERT_TRUE(picture) << line;
    EXPECT_EQ(cairo_image_surface_get_width(picture.get()), 1440);
  }
  EXPECT_GE(count, 20);
  const std::vector<std::string> closeUps{"menu.png", "main-panel.png", "settings-panel.png"};
  const auto files = filesIn(folder / "new" / "pictures");
  EXPECT_EQ(files.size(), static_cast<std::size_t>(count) + closeUps.size());
  for (const std::string& name : closeUps) {
    EXPECT_TRUE(files.contains(name)) << name;
  }
  testing::internal::CaptureStdout();
  EXPECT_EQ(runTour((folder / "second").string()), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), captions);
  EXPECT_TRUE(filesIn(folder / "second") == files);
}

TEST_F(RunTourTest, ReportsAnUnwritableDirectory) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(runTour("/dev/null/pictures"), 2);
  EXPECT_NE(testing::internal::GetCapturedStderr().find("/dev/null/pictures"), std::string::npos);
}

}  // namespace
}  // namespace orvane::showroom
