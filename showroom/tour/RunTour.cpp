// Creates the directory and runs the tour's script.
#include "showroom/tour/RunTour.hpp"

#include <filesystem>
#include <iostream>
#include <sstream>
#include <system_error>
#include <utility>

#include "desk/canvas/PinnedFonts.hpp"
#include "desk/script/ScriptProgram.hpp"
#include "showroom/settings/SettingsPages.hpp"
#include "showroom/tour/TourStage.hpp"
#include "showroom/tour/TourStory.hpp"

namespace orvane::showroom {

int runTour(const std::string& directory) {
  using desk::script::ScriptProgram;
  if (const auto message = desk::missingFontsMessage()) {
    std::cerr << "orvane-desk: " << *message << '\n';
    return ScriptProgram::broken;
  }
  std::error_code error;
  std::filesystem::create_directories(directory, error);
  if (!std::filesystem::is_directory(directory, error)) {
    std::cerr << "orvane-desk: cannot make the directory " << directory << '\n';
    return ScriptProgram::broken;
  }
  TourStage stage(directory);
  ScriptProgram::Settings settings;
  stage.addCommands(settings.commands);
  settings.prepare = [](desk::ApplicationHost& application) {
    addSettingsPages(application.systemSettings());
  };
  ScriptProgram program(std::move(settings), std::cin, std::cout, std::cerr);
  std::istringstream story{std::string(tourStory)};
  return program.run(story, "tour.desk");
}

}  // namespace orvane::showroom
