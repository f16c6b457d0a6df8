// WindowInput hands what comes from SDL to the session: movements, keys, clicks.
#pragma once

#include <SDL.h>

#include "desk/window/DeskSession.hpp"
#include "desk/window/SdlWindow.hpp"

namespace orvane::desk {

class WindowInput {
 public:
  WindowInput(DeskSession& session, SdlWindow& window) : session_(session), window_(window) {}

  void handle(const SDL_Event& event);
  [[nodiscard]] bool wantsToQuit() const { return wantsToQuit_; }
  /// True once after the drawing area may have been damaged or changed its size.
  [[nodiscard]] bool takeNeedsRedraw();

 private:
  void mouseMoved(const SDL_MouseMotionEvent& event);
  void mousePressed(const SDL_MouseButtonEvent& event);
  void wheelTurned(const SDL_MouseWheelEvent& event);
  void keyPressed(const SDL_KeyboardEvent& event);
  void windowChanged(const SDL_WindowEvent& event);
  void readModifiers();

  DeskSession& session_;
  SdlWindow& window_;
  bool wantsToQuit_ = false;
  bool needsRedraw_ = false;
  /// The mouse has just come into the window: its first movement brings the pointer below it.
  bool hasEntered_ = true;
};

}  // namespace orvane::desk
