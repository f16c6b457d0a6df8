// Opens the album, tells the story, and says how it ended.
#include "showroom/tour/RunTour.hpp"

#include <filesystem>
#include <iostream>
#include <system_error>

#include "desk/canvas/PinnedFonts.hpp"
#include "showroom/tour/TourStage.hpp"
#include "showroom/tour/TourStory.hpp"

namespace orvane::showroom {

int runTour(const std::string& directory) {
  constexpr int unwritable = 2;
  if (const auto message = desk::missingFontsMessage()) {
    std::cerr << "orvane-desk: " << *message << '\n';
    return unwritable;
  }
  std::error_code error;
  std::filesystem::create_directories(directory, error);
  if (!std::filesystem::is_directory(directory, error)) {
    std::cerr << "orvane-desk: cannot make the directory " << directory << '\n';
    return unwritable;
  }
  TourStage stage(directory, std::cout, std::cerr);
  tellTour(stage);
  if (stage.failedToWrite()) {
    return unwritable;
  }
  return stage.isTrue() ? 0 : 1;
}

}  // namespace orvane::showroom
