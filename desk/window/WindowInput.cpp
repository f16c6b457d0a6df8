// The keys' meaning is WindowCommands' business, that of the modifiers the Mac's.
#include "desk/window/WindowInput.hpp"

#include <utility>

#include <cairo.h>

#include "desk/window/WindowCommands.hpp"
#include "desk/window/WindowLayout.hpp"

namespace orvane::desk {

namespace {

WindowLayout layoutOf(const SdlWindow& window) {
  return {cairo_image_surface_get_width(window.surface()),
          cairo_image_surface_get_height(window.surface()), window.pixelRatio()};
}

}  // namespace

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
      session_.machine().mouse.releaseButton();
      session_.machine().runDue();
      break;
    case SDL_MOUSEWHEEL:
      wheelTurned(event.wheel);
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

void WindowInput::mouseMoved(const SDL_MouseMotionEvent& event) {
  const WindowLayout layout = layoutOf(window_);
  const DesktopLayout desktop = layout.desktopLayout(session_.machine().displays.globalFrames());
  const double ratio = layout.pixelRatio;
  const bool isOverDesktop = event.y * ratio < layout.desktop.height;
  window_.showCursor(!isOverDesktop);
  if (!window_.isMouseHeld()) {
    if (!isOverDesktop) {
      // Where it comes back is where the pointer is to be.
      hasEntered_ = true;
      return;
    }
    if (std::exchange(hasEntered_, false)) {
      if (const auto place = desktop.globalPoint(event.x * ratio, event.y * ratio)) {
        const CGPoint pointer = session_.machine().pointer.place();
        session_.movePointerBy(place->x - pointer.x, place->y - pointer.y);
      }
      return;
    }
  }
  const double pointsPerUnit = ratio / desktop.scale();
  session_.movePointerBy(event.xrel * pointsPerUnit, event.yrel * pointsPerUnit);
}

void WindowInput::mousePressed(const SDL_MouseButtonEvent& event) {
  if (window_.isMouseHeld()) {
    session_.machine().mouse.pressButton();
    session_.machine().runDue();
    return;
  }
  // The first click only takes hold of the mouse.
  const WindowLayout layout = layoutOf(window_);
  if (event.y * layout.pixelRatio < layout.desktop.height) {
    window_.holdMouse(true);
  }
}

void WindowInput::wheelTurned(const SDL_MouseWheelEvent& event) {
  // A wheel counts in lines.
  constexpr double pointsPerLine = 10;
  session_.machine().mouse.turnWheel(event.x * pointsPerLine, -event.y * pointsPerLine);
  session_.machine().runDue();
}

void WindowInput::keyPressed(const SDL_KeyboardEvent& event) {
  readModifiers();
  if (event.repeat != 0) {
    return;
  }
  const SDL_Keycode key = event.keysym.sym;
  if (key == SDLK_ESCAPE) {
    window_.holdMouse(false);
  } else if (key >= SDLK_a && key <= SDLK_z) {
    runWindowCommand(session_, static_cast<char>(key));
  }
}

void WindowInput::windowChanged(const SDL_WindowEvent& event) {
  switch (event.event) {
    case SDL_WINDOWEVENT_SIZE_CHANGED:
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_DISPLAY_CHANGED:
      needsRedraw_ = true;
      break;
    case SDL_WINDOWEVENT_ENTER:
      hasEntered_ = true;
      break;
    case SDL_WINDOWEVENT_FOCUS_LOST:
      // Keys that are let go elsewhere would seem held for ever.
      window_.holdMouse(false);
      session_.machine().modifierKeys.releaseAll();
      break;
    default:
      break;
  }
}

void WindowInput::readModifiers() {
  const SDL_Keymod state = SDL_GetModState();
  std::uint64_t flags = 0;
  flags |= (state & KMOD_ALT) != 0 ? static_cast<std::uint64_t>(kCGEventFlagMaskAlternate) : 0;
  flags |= (state & KMOD_CTRL) != 0 ? static_cast<std::uint64_t>(kCGEventFlagMaskControl) : 0;
  flags |= (state & KMOD_SHIFT) != 0 ? static_cast<std::uint64_t>(kCGEventFlagMaskShift) : 0;
  flags |= (state & KMOD_GUI) != 0 ? static_cast<std::uint64_t>(kCGEventFlagMaskCommand) : 0;
  session_.machine().modifierKeys.hold(flags);
}

}  // namespace orvane::desk
