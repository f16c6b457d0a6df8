// A thin layer over SDL, without decisions of its own.
#include "showroom/window/SdlWindow.hpp"

#include "desk/canvas/ImageSurface.hpp"
namespace orvane::showroom {

namespace {

constexpr int minimumWidth = 960;
constexpr int minimumHeight = 640;

/// Whether SDL has fallen back to a driver without a screen, and not because the environment asks
/// for it.
bool isInvisible(const char* driver) {
  const std::string name = driver == nullptr ? "" : driver;
  return SDL_getenv("SDL_VIDEODRIVER") == nullptr &&
         (name == "offscreen" || name == "dummy" || name == "evdev");
}

}  // namespace

std::unique_ptr<SdlWindow> SdlWindow::open(int width, int height, std::string& error) {
  SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
  SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
  // Pictures are drawn by the processor; a detour through OpenGL, which may be software, is slower.
  SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  if (SDL_Init(SDL_INIT_VIDEO) != 0) {
    error = SDL_GetError();
    return nullptr;
  }
  // The destructor shuts SDL down on every path from here.
  std::unique_ptr<SdlWindow> result(new SdlWindow);
  if (isInvisible(SDL_GetCurrentVideoDriver())) {
    error = "there is no display";
    return nullptr;
  }
  result->window_.reset(SDL_CreateWindow("Orvane desk", SDL_WINDOWPOS_CENTERED,
                                         SDL_WINDOWPOS_CENTERED, width, height,
                                         SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI));
  if (!result->window_) {
    error = SDL_GetError();
    return nullptr;
  }
  SDL_SetWindowMinimumSize(result->window_.get(), minimumWidth, minimumHeight);
  if (SDL_GetWindowSurface(result->window_.get()) == nullptr || !result->updateSize()) {
    error = SDL_GetError();
    return nullptr;
  }
  return result;
}

SdlWindow::~SdlWindow() {
  window_.reset();
  SDL_Quit();
}

bool SdlWindow::updateSize() {
  int width = 0;
  int height = 0;
  int pointWidth = 0;
  int pointHeight = 0;
  SDL_GetWindowSizeInPixels(window_.get(), &width, &height);
  SDL_GetWindowSize(window_.get(), &pointWidth, &pointHeight);
  if (width <= 0 || height <= 0 || pointWidth <= 0) {
    return false;
  }
  if (surface_ && cairo_image_surface_get_width(surface_.get()) == width &&
      cairo_image_surface_get_height(surface_.get()) == height) {
    return false;
  }
  pixelRatio_ = static_cast<double>(width) / pointWidth;
  picture_.reset();
  surface_ = desk::imageSurface(width, height);
  // Both formats store a pixel as a 32-bit number with alpha at the top; the picture is opaque.
  picture_.reset(SDL_CreateRGBSurfaceWithFormatFrom(
      cairo_image_surface_get_data(surface_.get()), width, height, 32,
      cairo_image_surface_get_stride(surface_.get()), SDL_PIXELFORMAT_XRGB8888));
  return picture_ != nullptr && cairo_surface_status(surface_.get()) == CAIRO_STATUS_SUCCESS;
}

void SdlWindow::present() {
  cairo_surface_flush(surface_.get());
  // The window's surface is replaced at each change of its size.
  if (SDL_Surface* const shown = SDL_GetWindowSurface(window_.get())) {
    SDL_BlitSurface(picture_.get(), nullptr, shown, nullptr);
    SDL_UpdateWindowSurface(window_.get());
  }
}

WindowLayout SdlWindow::layout() const {
  return {cairo_image_surface_get_width(surface_.get()),
          cairo_image_surface_get_height(surface_.get()), pixelRatio_};
}

int SdlWindow::framesPerSecond() const {
  constexpr int fallback = 60;
  SDL_DisplayMode mode;
  const int display = SDL_GetWindowDisplayIndex(window_.get());
  if (display < 0 || SDL_GetCurrentDisplayMode(display, &mode) != 0 || mode.refresh_rate <= 0) {
    return fallback;
  }
  return mode.refresh_rate;
}

void SdlWindow::showCursor(bool shows) {
  SDL_ShowCursor(shows ? SDL_ENABLE : SDL_DISABLE);
}

void SdlWindow::holdMouse(bool hold) {
  if (hold != isMouseHeld_ && SDL_SetRelativeMouseMode(hold ? SDL_TRUE : SDL_FALSE) == 0) {
    isMouseHeld_ = hold;
  }
}

}  // namespace orvane::showroom
