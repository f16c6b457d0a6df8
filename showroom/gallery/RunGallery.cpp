// The machine stores the language, which some components read, and carries the panels' models.
#include "showroom/gallery/RunGallery.hpp"

#include <array>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "desk/canvas/PinnedFonts.hpp"
#include "desk/canvas/PngFile.hpp"
#include "desk/machine/MachineScope.hpp"
#include "showroom/gallery/SheetPainter.hpp"

namespace orvane::showroom {

namespace {

struct NamedAppearance {
  bool isDark;
  bool increasesContrast;
  const char* fileSuffix;
};

constexpr std::array<NamedAppearance, 4> appearances{{{false, false, "-light"},
                                                      {true, false, "-dark"},
                                                      {false, true, "-light-contrast"},
                                                      {true, true, "-dark-contrast"}}};

}  // namespace

int runGallery(const std::string& directory) {
  constexpr int failureStatus = 2;
  if (const auto message = desk::missingFontsMessage()) {
    std::cerr << "orvane-desk: " << *message << '\n';
    return failureStatus;
  }
  std::error_code error;
  std::filesystem::create_directories(directory, error);
  const desk::MachineScope scope;
  scope.machine().process.start();
  desk::DrawingResources resources;
  for (const GallerySheet& sheet : gallerySheets()) {
    for (const auto& [isDark, increasesContrast, fileSuffix] : appearances) {
      const std::string name = sheet.name + fileSuffix + ".png";
      SheetStyle style;
      style.isDark = isDark;
      style.increasesContrast = increasesContrast;
      if (increasesContrast) {
        // One wallpaper is enough to see the components, and takes a third of the time.
        style.wallpapers = {desk::Appearance::Wallpaper::busy};
      }
      const desk::SurfacePointer picture = paintSheet(sheet, style, scope.machine(), resources);
      if (!desk::writePng(picture.get(), std::filesystem::path(directory) / name)) {
        std::cerr << "orvane-desk: cannot write " << name << " in " << directory << '\n';
        return failureStatus;
      }
      std::cout << name << std::endl;
    }
  }
  return 0;
}

}  // namespace orvane::showroom
