// The steps of the tour.
#pragma once

#include "showroom/tour/TourStage.hpp"

namespace orvane::showroom {

/// Plays all steps on a stage with a new machine.
void playTour(TourStage& stage);

}  // namespace orvane::showroom
