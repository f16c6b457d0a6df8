// Creates the directory and plays the tour into it.
#include "showroom/tour/RunTour.hpp"

#include <filesystem>
#include <iostream>
#include <system_error>

#include "desk/canvas/PinnedFonts.hpp"
#include "showroom/tour/TourStage.hpp"
#include "showroom/tour/TourStory.hpp"

namespace orvane::showroom {

int runTour(const std::string& directory) {
  constexpr int failureStatus = 2;
  if (const auto message = desk::missingFontsMessage()) {
    std::cerr << "orvane-desk: " << *message << '\n';
    return failureStatus;
  }
  std::error_code error;
  std::filesystem::create_directories(directory, error);
  if (!std::filesystem::is_directory(directory, error)) {
    std::cerr << "orvane-desk: cannot make the directory " << directory << '\n';
    return failureStatus;
  }
  TourStage stage(directory, std::cout, std::cerr);
  playTour(stage);
  if (stage.failedToWrite()) {
    return failureStatus;
  }
  return stage.hasPassed() ? 0 : 1;
}

}  // namespace orvane::showroom
