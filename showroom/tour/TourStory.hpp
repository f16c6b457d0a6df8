// The story that the tour tells.
#pragma once

#include "showroom/tour/TourStage.hpp"

namespace orvane::showroom {

/// Plays all steps on the stage, whose machine must be new.
void tellTour(TourStage& stage);

}  // namespace orvane::showroom
