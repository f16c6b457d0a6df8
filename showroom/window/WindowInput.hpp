// WindowInput dispatches SDL events to the desk and to the hardware panel.
#pragma once

#include <SDL.h>

#include "showroom/hardware/HardwarePanelHost.hpp"
#include "showroom/window/DeskSession.hpp"
#include "showroom/window/SdlWindow.hpp"

namespace orvane::showroom {

/// The pointer follows the cursor over the screens; where the cursor leaves them, it keeps moving
/// against the edge. A click on the desktop acts immediately and captures the mouse. Keys go to the
/// side that was clicked last; Escape releases the mouse unless a menu or window handles it.
class WindowInput {
 public:
  WindowInput(DeskSession& session, SdlWindow& window, HardwarePanelHost& panel)
      : session_(session), window_(window), panel_(panel) {}

  void handle(const SDL_Event& event);
  [[nodiscard]] bool wantsToQuit() const { return wantsToQuit_; }
  /// Returns whether the drawing area may have been damaged or resized since the last call.
  [[nodiscard]] bool takeNeedsRedraw();

 private:
  /// Converts the window's points to the panel's.
  [[nodiscard]] ui::Point panelPoint(int x, int y) const;
  /// Whether the computer's cursor is over the panel.
  [[nodiscard]] bool isOverPanel(int x) const;
  void mouseMoved(const SDL_MouseMotionEvent& event);
  /// Moves the pointer to the computer's cursor; false if no screen is there.
  bool followCursor(const SDL_MouseMotionEvent& event);
  void mousePressed(const SDL_MouseButtonEvent& event);
  void mouseReleased(const SDL_MouseButtonEvent& event);
  void wheelScrolled(const SDL_MouseWheelEvent& event);
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
