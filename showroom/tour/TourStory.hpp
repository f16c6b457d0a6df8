// The script of the tour, tour.desk.
#pragma once

#include <string_view>

namespace orvane::showroom {

/// In the desk's script language, with the commands of TourStage.
extern const std::string_view tourStory;

}  // namespace orvane::showroom
