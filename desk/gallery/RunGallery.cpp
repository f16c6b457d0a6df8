// A machine is needed only for the stored language, which some components read by themselves.
#include "desk/gallery/RunGallery.hpp"

#include <filesystem>
#include <iostream>
#include <system_error>

#include "desk/canvas/ApplicationImages.hpp"
#include "desk/canvas/PinnedFonts.hpp"
#include "desk/canvas/PngFile.hpp"
#include "desk/gallery/SheetPainter.hpp"
#include "desk/machine/MachineScope.hpp"

namespace orvane::desk {

int runGallery(const std::string& directory) {
  constexpr int unwritable = 2;
  if (const auto message = missingFontsMessage()) {
    std::cerr << "orvane-desk: " << *message << '\n';
    return unwritable;
  }
  std::error_code error;
  std::filesystem::create_directories(directory, error);
  const MachineScope scope;
  scope.machine().process.start();
  DrawingResources resources;
  addApplicationImages(resources.images);
  for (const GallerySheet& sheet : gallerySheets()) {
    for (const bool isDark : {false, true}) {
      const std::string name = sheet.name + (isDark ? "-dark.png" : "-light.png");
      SheetStyle style;
      style.isDark = isDark;
      const SurfacePointer picture = paintSheet(sheet, style, scope.machine(), resources);
      if (!writePng(picture.get(), std::filesystem::path(directory) / name)) {
        std::cerr << "orvane-desk: cannot write " << name << " in " << directory << '\n';
        return unwritable;
      }
      std::cout << name << std::endl;
    }
  }
  return 0;
}

}  // namespace orvane::desk
