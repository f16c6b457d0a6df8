// SdlWindow is the real window: it shows pixels and holds the mouse.
#pragma once

#include <memory>
#include <string>

#include <SDL.h>
#include <cairo.h>

#include "desk/canvas/CairoPointers.hpp"

namespace orvane::showroom {

class SdlWindow {
 public:
  /// Opens a window of that size in the computer's own points. Null when there is no display to
  /// open it on; `complaint` then says why.
  static std::unique_ptr<SdlWindow> open(int width, int height, std::string& complaint);
  SdlWindow(const SdlWindow&) = delete;
  SdlWindow& operator=(const SdlWindow&) = delete;
  ~SdlWindow();

  /// Looks up the size of the drawing area. True when it has changed; then there is a new surface.
  bool updateSize();
  /// An ARGB32 image surface of the drawing area's size.
  [[nodiscard]] cairo_surface_t* surface() const { return surface_.get(); }
  /// Shows what is on the surface.
  void present();

  /// Pixels per point.
  [[nodiscard]] double pixelRatio() const { return pixelRatio_; }
  [[nodiscard]] int framesPerSecond() const;

  /// While held, the mouse leaves the window no more and only its movements count.
  void holdMouse(bool hold);
  /// Whether the computer's own cursor is seen over the window.
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
  /// The same pixels as SDL sees them.
  std::unique_ptr<SDL_Surface, Release> picture_;
  double pixelRatio_ = 1;
  bool isMouseHeld_ = false;
};

}  // namespace orvane::showroom
