// orvane-desk: parses the command line and starts the chosen mode.
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "desk/explore/RunExplore.hpp"
#include "desk/script/ScriptProgram.hpp"
#include "showroom/desktop/DesktopPicture.hpp"
#include "showroom/gallery/RunGallery.hpp"
#include "showroom/settings/SettingsPages.hpp"
#include "showroom/tour/RunTour.hpp"
#include "showroom/window/RunWindow.hpp"

namespace {

namespace script = orvane::desk::script;

/// The exit status for an invalid command line.
constexpr int usageErrorStatus = 2;

script::Problem writePicture(const script::Session& session,
                             const script::PictureRequest& request) {
  return orvane::showroom::writePicture(session.machine(), session.application(), request.file,
                                        request.scale, request.surface);
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

void addOptions(orvane::desk::explore::ExploreOptions& options, CLI::App& explorer) {
  explorer.add_option("--seed", options.seed, "The seed of the first day")
      ->check(CLI::NonNegativeNumber);
  explorer.add_option("--days", options.days, "The number of days")->check(CLI::NonNegativeNumber);
  explorer.add_option("--steps", options.steps, "The steps of a day")
      ->check(CLI::NonNegativeNumber);
  explorer.add_flag("--shrink", options.shrinks, "Reduce the first failing day to a short script");
  explorer.add_flag("--all-paths", options.needsAllPaths, "Fail if a rare state was not reached");
  explorer.add_option("FILE", options.scripts, "Scripts to check instead");
}

}  // namespace

// An exception ends the program with its message.
int main(int argumentCount, char** arguments) {  // NOLINT(bugprone-exception-escape)
  CLI::App program(
      "Orvane on a simulated Mac with several displays. Without a command it opens a window.",
      "orvane-desk");
  orvane::showroom::WindowOptions window;
  std::string dumpFile;
  program.add_option("--displays", window.displayCount, "The number of displays")
      ->check(CLI::Range(1, 4));
  program.add_option("--width", window.width, "The window's width")->check(CLI::Range(320, 16384));
  program.add_option("--height", window.height, "The window's height")
      ->check(CLI::Range(240, 16384));
  CLI::Option* const dump = program.add_option(
      "--dump", dumpFile, "Write the final state as JSON when the window is closed");

  CLI::App* const scripts = program.add_subcommand("script", "Run scripts");
  std::vector<std::string> files;
  scripts
      ->add_option("FILE", files, "A script, run on its own machine; \"-\" is the standard input")
      ->required();

  CLI::App* const tour = program.add_subcommand("tour", "Demonstrate the application in pictures");
  std::string folder;
  tour->add_option("DIR", folder, "The folder for the pictures")->required();

  CLI::App* const gallery =
      program.add_subcommand("gallery", "Draw every component in every state");
  std::string galleryFolder;
  gallery->add_option("DIR", galleryFolder, "The folder for the pictures")->required();

  CLI::App* const explorer =
      program.add_subcommand("explore", "Run random days with faults and check each step");
  orvane::desk::explore::ExploreOptions explore;
  addOptions(explore, *explorer);

  program.require_subcommand(0, 1);
  try {
    program.parse(argumentCount, arguments);
  } catch (const CLI::ParseError& error) {
    return program.exit(error) == 0 ? 0 : usageErrorStatus;
  }
  if (scripts->parsed()) {
    return runScripts(files);
  }
  if (tour->parsed()) {
    return orvane::showroom::runTour(folder);
  }
  if (gallery->parsed()) {
    return orvane::showroom::runGallery(galleryFolder);
  }
  if (explorer->parsed()) {
    return orvane::desk::explore::runExplore(explore, std::cout, std::cerr);
  }
  if (dump->count() > 0) {
    window.dumpFile = dumpFile;
  }
  return orvane::showroom::runWindow(window);
}
