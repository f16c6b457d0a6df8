// The program of the desk: the simulated Mac in a window, under a script, or on a tour; and the
// gallery of the application's components.
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "desk/explore/RunExplore.hpp"
#include "desk/script/ScriptProgram.hpp"
#include "showroom/desktop/DesktopPicture.hpp"
#include "showroom/desktop/SurfacePicture.hpp"
#include "showroom/gallery/RunGallery.hpp"
#include "showroom/settings/SettingsPages.hpp"
#include "showroom/tour/RunTour.hpp"
#include "showroom/window/RunWindow.hpp"

namespace {

namespace script = orvane::desk::script;

/// The exit status when the command line makes no sense.
constexpr int misusedStatus = 2;

script::Problem writePicture(const script::Session& session,
                             const script::PictureRequest& request) {
  if (request.surface) {
    return orvane::desk::writeSurfacePicture(session.machine(), session.application(),
                                             *request.surface, request.file, request.scale);
  }
  return orvane::desk::writeDesktopPicture(session.machine(), session.application(), request.file,
                                           request.scale);
}

int runScripts(const std::vector<std::string>& files) {
  script::ScriptProgram::Settings settings;
  settings.prepare = [](orvane::desk::ApplicationHost& application) {
    orvane::showroom::addSettingsPages(application.systemSettings());
  };
  settings.pictureWriter = writePicture;
  script::ScriptProgram program(std::move(settings), std::cin, std::cout, std::cerr);
  return program.runFiles(files);
}

}  // namespace

// Whatever is thrown ends the program with its message.
int main(int argumentCount, char** arguments) {  // NOLINT(bugprone-exception-escape)
  CLI::App program(
      "Orvane on a simulated Mac with several displays; without a command, in a window.",
      "orvane-desk");
  orvane::desk::WindowOptions window;
  std::string dumpFile;
  program.add_option("--displays", window.displayCount, "How many displays the window begins with")
      ->check(CLI::Range(1, 4));
  program.add_option("--width", window.width, "The window's width")->check(CLI::Range(320, 16384));
  program.add_option("--height", window.height, "The window's height")
      ->check(CLI::Range(240, 16384));
  CLI::Option* const dump = program.add_option(
      "--dump", dumpFile, "When the window is closed, write there what it came to, as JSON");

  CLI::App* const scripts = program.add_subcommand("script", "Run scripts");
  std::vector<std::string> files;
  scripts
      ->add_option("FILE", files,
                   "A script, with a machine of its own; \"-\" is the standard input")
      ->required();

  CLI::App* const tour = program.add_subcommand("tour", "Tell the main job as a story in pictures");
  std::string folder;
  tour->add_option("DIR", folder, "Where the pictures go")->required();

  CLI::App* const gallery =
      program.add_subcommand("gallery", "Show every component in every state in pictures");
  std::string galleryFolder;
  gallery->add_option("DIR", galleryFolder, "Where the pictures go")->required();

  CLI::App* const explorer =
      program.add_subcommand("explore", "Live days by lots, with faults, and look after each step");
  orvane::desk::ExploreOptions explore;
  explorer->add_option("--seed", explore.seed, "The seed of the first day");
  explorer->add_option("--days", explore.days, "How many days")->check(CLI::NonNegativeNumber);
  explorer->add_option("--steps", explore.steps, "The steps of a day")
      ->check(CLI::NonNegativeNumber);
  explorer->add_flag("--shrink", explore.shrinks,
                     "Write the shortest script that still fails as the first day that did");
  explorer->add_flag("--all-paths", explore.needsAllPaths,
                     "Fail when a rare state was not reached");
  explorer->add_option("FILE", explore.scripts, "Scripts to look after instead");

  program.require_subcommand(0, 1);
  try {
    program.parse(argumentCount, arguments);
  } catch (const CLI::ParseError& error) {
    return program.exit(error) == 0 ? 0 : misusedStatus;
  }
  if (scripts->parsed()) {
    return runScripts(files);
  }
  if (tour->parsed()) {
    return orvane::desk::runTour(folder);
  }
  if (gallery->parsed()) {
    return orvane::desk::runGallery(galleryFolder);
  }
  if (explorer->parsed()) {
    return orvane::desk::runExplore(explore, std::cout, std::cerr);
  }
  if (dump->count() > 0) {
    window.dumpFile = dumpFile;
  }
  return orvane::desk::runWindow(window);
}
