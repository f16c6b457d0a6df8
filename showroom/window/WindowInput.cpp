// Keys go to the panel or to the desk's windows, modifiers always to the machine.
#include "showroom/window/WindowInput.hpp"

#include <utility>

#include "showroom/window/KeyTranslation.hpp"

namespace orvane::showroom {

void WindowInput::handle(const SDL_Event& event) {
  switch (event.type) {
    case SDL_QUIT:
      wantsToQuit_ = true;
      break;
    case SDL_MOUSEMOTION:
      mouseMoved(event.motion);
      break;
    case SDL_MOUSEBUTTONDOWN:
      mousePressed(event.button);
      break;
    case SDL_MOUSEBUTTONUP:
      mouseReleased(event.button);
      break;
    case SDL_MOUSEWHEEL:
      wheelScrolled(event.wheel);
      break;
    case SDL_KEYDOWN:
      keyPressed(event.key);
      break;
    case SDL_KEYUP:
      readModifiers();
      break;
    case SDL_WINDOWEVENT:
      windowChanged(event.window);
      break;
    default:
      break;
  }
}

bool WindowInput::takeNeedsRedraw() {
  return std::exchange(needsRedraw_, false);
}

ui::Point WindowInput::panelPoint(int x, int y) const {
  const WindowLayout now = window_.layout();
  return {x - now.panel.x / now.pixelRatio, y - now.panel.y / now.pixelRatio};
}

bool WindowInput::isOverPanel(int x) const {
  const WindowLayout now = window_.layout();
  return !window_.isMouseHeld() && x * now.pixelRatio >= now.panel.x;
}

void WindowInput::mouseMoved(const SDL_MouseMotionEvent& event) {
  isPointerOverPanel_ = isOverPanel(event.x) || isPanelPressed_;
  window_.showCursor(isPointerOverPanel_);
  if (isPointerOverPanel_) {
    panel_.pointerMoved(panelPoint(event.x, event.y));
    return;
  }
  panel_.pointerExited();
  if (!window_.isMouseHeld() && followCursor(event)) {
    return;
  }
  const WindowLayout now = window_.layout();
  const double pointsPerUnit =
      now.pixelRatio / now.desktopLayout(session_.machine().displays.globalFrames()).scale();
  session_.movePointerBy(event.xrel * pointsPerUnit, event.yrel * pointsPerUnit);
}

bool WindowInput::followCursor(const SDL_MouseMotionEvent& event) {
  const WindowLayout now = window_.layout();
  const DesktopLayout desktop = now.desktopLayout(session_.machine().displays.globalFrames());
  const auto place = desktop.globalPoint(event.x * now.pixelRatio, event.y * now.pixelRatio);
  if (!place) {
    return false;
  }
  const CGPoint pointer = session_.machine().pointer.location();
  session_.movePointerBy(place->x - pointer.x, place->y - pointer.y);
  return true;
}

void WindowInput::mousePressed(const SDL_MouseButtonEvent& event) {
  panelHasKeys_ = isOverPanel(event.x);
  if (panelHasKeys_) {
    isPanelPressed_ = true;
    panel_.pointerDown(panelPoint(event.x, event.y));
    return;
  }
  window_.holdMouse(true);
  session_.hand().pressButton();
}

void WindowInput::mouseReleased(const SDL_MouseButtonEvent& event) {
  if (std::exchange(isPanelPressed_, false)) {
    panel_.pointerUp(panelPoint(event.x, event.y));
    return;
  }
  session_.hand().releaseButton();
}

void WindowInput::wheelScrolled(const SDL_MouseWheelEvent& event) {
  // SDL reports lines.
  constexpr double pointsPerLine = 10;
  if (isPointerOverPanel_) {
    panel_.scrollBy(-event.y * pointsPerLine);
    return;
  }
  session_.machine().mouse.turnWheel(event.x * pointsPerLine, -event.y * pointsPerLine);
  session_.machine().runDue();
}

void WindowInput::keyPressed(const SDL_KeyboardEvent& event) {
  readModifiers();
  const auto key = keyEventOf(event.keysym);
  if (!key) {
    return;
  }
  if (panelHasKeys_) {
    panel_.keyDown(*key);
    return;
  }
  if (!session_.hand().key(*key) && key->key == ui::Key::escape) {
    window_.holdMouse(false);
  }
}

void WindowInput::windowChanged(const SDL_WindowEvent& event) {
  switch (event.event) {
    case SDL_WINDOWEVENT_SIZE_CHANGED:
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_DISPLAY_CHANGED:
      needsRedraw_ = true;
      break;
    case SDL_WINDOWEVENT_LEAVE:
      panel_.pointerExited();
      break;
    case SDL_WINDOWEVENT_FOCUS_LOST:
      // Releases in other windows are not reported.
      window_.holdMouse(false);
      session_.machine().modifierKeys.releaseAll();
      break;
    default:
      break;
  }
}

void WindowInput::readModifiers() {
  session_.machine().modifierKeys.hold(modifierFlagsOf(SDL_GetModState()));
}

}  // namespace orvane::showroom
