// Speed limits of the view kit: the time for a panel of about 150 views from a change to its
// layout, and for painting all of it.
#include <algorithm>
#include <ctime>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "Orvane/ui/host/ViewHost.hpp"
#include "bench/KitPanel.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/ImageSurface.hpp"

namespace orvane::bench {
namespace {

constexpr int rounds = 40;

/// Milliseconds of processor time in the fastest round, since other load can only slow it down.
template <typename Call>
double quickestMilliseconds(int callsPerRound, const Call& call) {
  double quickest = std::numeric_limits<double>::infinity();
  for (int round = 0; round < rounds; ++round) {
    const std::clock_t begin = std::clock();
    for (int index = 0; index < callsPerRound; ++index) {
      call();
    }
    const double elapsed = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    quickest = std::min(quickest, elapsed / callsPerRound);
  }
  return quickest;
}

class KitSpeed : public testing::Test {
 protected:
  KitSpeed() {
    host.setSize({KitPanel::width, KitPanel::height});
    host.setRoot([this](const ui::Environment&) { return ui::View(KitPanel{++revision % 10}); });
    host.layoutIfNeeded();
  }

  desk::DrawingResources resources;
  ui::ViewHost host{resources.hostPlatform()};
  int revision = 0;
};

TEST_F(KitSpeed, FromAChangeToTheLayoutOfAPanelTakesLessThanHalfAMillisecond) {
  const int before = revision;
  const double update = quickestMilliseconds(20, [&] {
    host.invalidate();
    host.layoutIfNeeded();
  });
  RecordProperty("updateMilliseconds", std::to_string(update));
  EXPECT_GE(revision - before, rounds * 20) << "the panel was rebuilt each time";
  EXPECT_LT(update, 0.5);
}

TEST_F(KitSpeed, PaintingAllOfAPanelAtTwoPixelsToThePointTakesLessThanEightMilliseconds) {
  constexpr double scale = 2;
  const desk::SurfacePointer surface =
      desk::imageSurface({KitPanel::width, KitPanel::height}, scale);
  const double paint = quickestMilliseconds(2, [&] {
    desk::CairoCanvas canvas(surface.get(), scale, resources);
    host.paint(canvas, {0, 0, KitPanel::width, KitPanel::height});
  });
  RecordProperty("paintMilliseconds", std::to_string(paint));
  EXPECT_LT(paint, 8);
}

}  // namespace
}  // namespace orvane::bench
