// Collects the sheets of all parts of the application.
#include "showroom/gallery/GallerySheet.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

#include "Orvane/base/Require.hpp"

namespace orvane::showroom {

std::vector<GallerySheet> gallerySheets() {
  std::vector<GallerySheet> all = mainPanelSheets();
  for (std::vector<GallerySheet> more : {buttonSheets(), settingsSheets(), paletteSheets(),
                                         menuSheets(), dialogueSheets(), panelSheets()}) {
    std::ranges::move(more, std::back_inserter(all));
  }
  return all;
}

GallerySheet gallerySheetNamed(const std::string& name) {
  const std::vector<GallerySheet> all = gallerySheets();
  const auto found = std::ranges::find(all, name, &GallerySheet::name);
  require(found != all.end(), "there is no such sheet in the gallery");
  return *found;
}

}  // namespace orvane::showroom
