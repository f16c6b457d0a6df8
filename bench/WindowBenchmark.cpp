// The cost of one frame of the desk's window while the pointer moves over the main panel, with
// three displays: the machine's time, the movement and all drawing. A window at 60 frames a second
// has 16.6 ms for that and for showing the frame.
#include <cstddef>
#include <cstdint>

#include <benchmark/benchmark.h>

#include "desk/canvas/ImageSurface.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/window/WindowPicture.hpp"

namespace orvane::bench {
namespace {

constexpr int width = 1480;
constexpr int height = 800;
constexpr std::int64_t frameNanoseconds = desk::Clock::nanosecondsPerSecond / 60;

void windowFrame(benchmark::State& state) {
  showroom::DeskSession session(3);
  session.application().reopen();
  session.advance(2 * desk::Clock::nanosecondsPerSecond);
  showroom::HardwarePanelHost panel(session.hardware());
  showroom::WindowPicture picture(panel);
  const desk::SurfacePointer surface = desk::imageSurface(width, height);
  const showroom::WindowLayout layout(width, height, 1);
  desk::WindowServer& server = desk::WindowServer::current();
  const auto window = desk::Surfaces(server).window("main");
  const CGPoint corner = server.topLeftOf(*window);
  const CGPoint pointer = session.machine().pointer.location();
  // From the middle of the row of cards to its sides and back.
  session.movePointerBy(corner.x + 60 - pointer.x, corner.y + 230 - pointer.y);
  double step = 4;
  std::int64_t drawn = 0;
  for (auto _ : state) {
    if (++drawn % 120 == 0) {
      step = -step;
    }
    session.movePointerBy(step, 0);
    session.advance(frameNanoseconds);
    picture.draw(surface.get(), layout, session, true);
  }
}

BENCHMARK(windowFrame)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvane::bench
