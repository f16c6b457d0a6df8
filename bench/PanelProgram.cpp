// Shows the synthetic panel once without a screen and prints the time since the process was
// started, the cost of repainting all of it, and the resident memory.
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iostream>
#include <string>

#include "Orvane/ui/host/ViewHost.hpp"
#include "bench/KitPanel.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/ImageSurface.hpp"

namespace {

using namespace orvane;

constexpr double scale = 2;
constexpr int repaints = 50;

/// Processor time of all threads of the process.
double millisecondsOfWork() {
  return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double millisecondsNow() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

/// In kilobytes.
long residentMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) {
      return std::stol(line.substr(6));
    }
  }
  return 0;
}

}  // namespace

int main() {
  const char* const started = std::getenv("PANEL_STARTED_MS");
  desk::DrawingResources resources;
  ui::ViewHost host(resources.hostPlatform());
  const desk::SurfacePointer surface =
      desk::imageSurface({bench::KitPanel::width, bench::KitPanel::height}, scale);
  host.setSize({bench::KitPanel::width, bench::KitPanel::height});
  host.setRoot([](const ui::Environment&) { return ui::View(bench::KitPanel{1}); });
  const auto paint = [&] {
    desk::CairoCanvas canvas(surface.get(), scale, resources);
    host.paint(canvas, {0, 0, host.size().width, host.size().height});
  };
  host.tick(0);
  paint();
  if (started != nullptr) {
    std::cout << "first_frame_ms " << millisecondsNow() - std::stod(started) << '\n';
  }
  const double began = millisecondsOfWork();
  for (int repaint = 0; repaint < repaints; ++repaint) {
    paint();
  }
  std::cout << "repaint_ms " << (millisecondsOfWork() - began) / repaints << '\n'
            << "resident_kb " << residentMemory() << '\n';
  if (const char* const file = std::getenv("PANEL_PICTURE")) {
    cairo_surface_write_to_png(surface.get(), file);
  }
  return 0;
}
