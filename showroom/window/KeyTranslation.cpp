// SDL identifies a character key by its character without modifiers.
#include "showroom/window/KeyTranslation.hpp"

#include <string>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::showroom {

namespace {

ui::KeyModifiers modifiersOf(std::uint16_t state) {
  return {(state & KMOD_SHIFT) != 0, (state & KMOD_CTRL) != 0, (state & KMOD_ALT) != 0,
          (state & KMOD_GUI) != 0};
}

std::optional<ui::Key> keyOf(SDL_Keycode code) {
  switch (code) {
    case SDLK_TAB:
      return ui::Key::tab;
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
      return ui::Key::enter;
    case SDLK_SPACE:
      return ui::Key::space;
    case SDLK_ESCAPE:
      return ui::Key::escape;
    case SDLK_LEFT:
      return ui::Key::left;
    case SDLK_RIGHT:
      return ui::Key::right;
    case SDLK_UP:
      return ui::Key::up;
    case SDLK_DOWN:
      return ui::Key::down;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<ui::KeyEvent> keyEventOf(const SDL_Keysym& keysym) {
  const ui::KeyModifiers modifiers = modifiersOf(keysym.mod);
  if (const auto key = keyOf(keysym.sym)) {
    return ui::KeyEvent{*key, modifiers, {}};
  }
  // Printable ASCII; letters are lower case.
  if (keysym.sym > ' ' && keysym.sym < 127) {
    return ui::KeyEvent{ui::Key::character, modifiers,
                        std::string(1, static_cast<char>(keysym.sym))};
  }
  return std::nullopt;
}

std::uint64_t modifierFlagsOf(SDL_Keymod state) {
  std::uint64_t flags = 0;
  flags |= (state & KMOD_ALT) != 0 ? static_cast<std::uint64_t>(kCGEventFlagMaskAlternate) : 0;
  flags |= (state & KMOD_CTRL) != 0 ? static_cast<std::uint64_t>(kCGEventFlagMaskControl) : 0;
  flags |= (state & KMOD_SHIFT) != 0 ? static_cast<std::uint64_t>(kCGEventFlagMaskShift) : 0;
  flags |= (state & KMOD_GUI) != 0 ? static_cast<std::uint64_t>(kCGEventFlagMaskCommand) : 0;
  return flags;
}

}  // namespace orvane::showroom
