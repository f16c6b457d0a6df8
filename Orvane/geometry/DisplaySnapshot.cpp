// One attached display as the application lists it: its identifiers, name and frames.
#include "Orvane/geometry/DisplaySnapshot.hpp"

#include <optional>

#include "Orvane/geometry/OrvaneDisplayNameLocalizer.hpp"
#include "Orvane/geometry/OrvaneScreen.hpp"

namespace orvane {

DisplaySnapshot DisplaySnapshot::of(const appkit::Screen& screen,
                                    std::span<const appkit::Screen> screens) {
  const std::optional<CGDirectDisplayID> displayID = OrvaneScreen::orvaneDisplayID(screen);
  const bool isBuiltIn = displayID && CGDisplayIsBuiltin(*displayID) != 0;
  return {
      .id = OrvaneScreen::orvanePrimaryIdentifier(screen),
      .matchingIdentifiers = OrvaneScreen::orvaneMatchingIdentifiers(screen),
      .name = OrvaneDisplayNameLocalizer::localizedDisplayName(screen.localizedName(), displayID,
                                                               isBuiltIn),
      .frame = screen.frame(),
      .cgFrame = OrvaneScreen::orvaneCGFrame(screen, screens),
      .isMain = displayID && CGDisplayIsMain(*displayID) != 0,
      .isBuiltIn = isBuiltIn,
  };
}

std::vector<DisplaySnapshot> DisplaySnapshot::ofAllScreens() {
  std::vector<DisplaySnapshot> snapshots;
  const std::vector<appkit::Screen> screens = appkit::Screen::screens();
  for (const appkit::Screen& screen : screens) {
    snapshots.push_back(of(screen, screens));
  }
  return snapshots;
}

bool operator==(const DisplaySnapshot& first, const DisplaySnapshot& second) {
  return first.id == second.id && first.matchingIdentifiers == second.matchingIdentifiers &&
         first.name == second.name && CGRectEqualToRect(first.frame, second.frame) &&
         CGRectEqualToRect(first.cgFrame, second.cgFrame) && first.isMain == second.isMain &&
         first.isBuiltIn == second.isBuiltIn;
}

}  // namespace orvane
