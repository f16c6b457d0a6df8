// SdlWindow is the real window: it shows pixels and captures the mouse.
#pragma once

#include <memory>
#include <string>

#include <SDL.h>
#include <cairo.h>

#include "desk/canvas/CairoPointers.hpp"
#include "showroom/window/WindowLayout.hpp"

namespace orvane::showroom {

class SdlWindow {
 public:
  /// Opens a window of this size in the computer's points. Null if that is impossible; `error` then
  /// says why.
  static std::unique_ptr<SdlWindow> open(int width, int height, std::string& error);
  SdlWindow(const SdlWindow&) = delete;
  SdlWindow& operator=(const SdlWindow&) = delete;
  ~SdlWindow();

  /// Adopts the size of the drawing area. Returns whether it has changed, which replaces surface().
  bool updateSize();
  /// An ARGB32 image surface with the size of the drawing area.
  [[nodiscard]] cairo_surface_t* surface() const { return surface_.get(); }
  /// Shows the content of the surface.
  void present();

  /// How the drawing area is divided.
  [[nodiscard]] WindowLayout layout() const;
  [[nodiscard]] int framesPerSecond() const;

  /// Captures the mouse: it cannot leave the window and reports relative movements.
  void holdMouse(bool hold);
  /// Shows or hides the computer's cursor over the window.
  void showCursor(bool shows);
  [[nodiscard]] bool isMouseHeld() const { return isMouseHeld_; }

 private:
  struct Release {
    void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
  };

  SdlWindow() = default;

  std::unique_ptr<SDL_Window, Release> window_;
  desk::SurfacePointer surface_;
  /// The same pixels for SDL.
  std::unique_ptr<SDL_Surface, Release> picture_;
  /// Pixels per point.
  double pixelRatio_ = 1;
  bool isMouseHeld_ = false;
};

}  // namespace orvane::showroom
