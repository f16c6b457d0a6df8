// The time from the launch, with three displays, until the main window is open and its first frame
// painted at 2x. Every iteration reads fonts and symbols again, but the computer's file cache stays
// warm.
#include <memory>
#include <optional>

#include <benchmark/benchmark.h>

#include "Orvane/windows/OrvaneWindow.hpp"
#include "desk/application/ApplicationHost.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/machine/MachineScope.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/StandardDisplays.hpp"

namespace orvane::bench {
namespace {

constexpr double displayScale = 2;

bool paintMainWindow(cairo_surface_t* surface) {
  desk::WindowServer& server = desk::WindowServer::current();
  const auto window = desk::Surfaces(server).window("main");
  if (window == nullptr) {
    return false;
  }
  window->content->update();
  desk::CairoCanvas canvas(surface, displayScale, server.resources());
  window->content->host().paint(
      canvas, {0, 0, OrvaneWindow::contentSize.width, OrvaneWindow::contentSize.height});
  return true;
}

void launchToFirstFrame(benchmark::State& state) {
  const desk::SurfacePointer surface = desk::imageSurface(
      {OrvaneWindow::contentSize.width, OrvaneWindow::contentSize.height}, displayScale);
  for (auto _ : state) {
    state.PauseTiming();
    std::optional<desk::MachineScope> scope(std::in_place);
    for (int display = 0; display < 3; ++display) {
      showroom::attachNextStandardDisplay(scope->machine());
    }
    desk::ApplicationHost application(scope->machine());
    state.ResumeTiming();
    application.launch();
    application.reopen();
    scope->machine().runDue();
    const bool isPainted = paintMainWindow(surface.get());
    state.PauseTiming();
    if (!isPainted) {
      state.SkipWithError("there is no main window");
    }
    scope.reset();
    state.ResumeTiming();
    if (!isPainted) {
      break;
    }
  }
}

BENCHMARK(launchToFirstFrame)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvane::bench
