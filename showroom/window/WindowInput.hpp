// WindowInput hands what comes from SDL to the desk and to the hardware panel: movements, keys,
// clicks.
#pragma once

#include <SDL.h>

#include "showroom/hardware/HardwarePanelHost.hpp"
#include "showroom/window/DeskSession.hpp"
#include "showroom/window/SdlWindow.hpp"
#include "showroom/window/WindowLayout.hpp"

namespace orvane::showroom {

/// The pointer follows the cursor over the screens, and presses on against an edge where the cursor
/// leaves them. A click on the desktop acts there at once and lets the desk hold the mouse. Keys go
/// to the side that was clicked last; Escape, where nobody else wants it, gives the mouse back.
class WindowInput {
 public:
  WindowInput(DeskSession& session, SdlWindow& window, HardwarePanelHost& panel)
      : session_(session), window_(window), panel_(panel) {}

  void handle(const SDL_Event& event);
  [[nodiscard]] bool wantsToQuit() const { return wantsToQuit_; }
  /// True once after the drawing area may have been damaged or changed its size.
  [[nodiscard]] bool takeNeedsRedraw();

 private:
  [[nodiscard]] WindowLayout layout() const;
  /// Of a place in the window's points, that in the panel's.
  [[nodiscard]] ui::Point panelPoint(int x, int y) const;
  /// Whether the computer's own cursor is over the panel.
  [[nodiscard]] bool isOverPanel(int x) const;
  void mouseMoved(const SDL_MouseMotionEvent& event);
  /// Brings the pointer below the computer's cursor; false when no screen is there.
  bool followCursor(const SDL_MouseMotionEvent& event);
  void mousePressed(const SDL_MouseButtonEvent& event);
  void mouseReleased(const SDL_MouseButtonEvent& event);
  void wheelTurned(const SDL_MouseWheelEvent& event);
  void keyPressed(const SDL_KeyboardEvent& event);
  void windowChanged(const SDL_WindowEvent& event);
  void readModifiers();

  DeskSession& session_;
  SdlWindow& window_;
  HardwarePanelHost& panel_;
  bool wantsToQuit_ = false;
  bool needsRedraw_ = false;
  bool isPanelPressed_ = false;
  bool isPointerOverPanel_ = false;
  bool panelHasKeys_ = false;
};

}  // namespace orvane::showroom
