// SDL identifies a character key by its character without modifiers.
#include "showroom/window/KeyTranslation.hpp"

#include <array>
#include <string>
#include <utility>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::showroom {

namespace {

ui::KeyModifiers modifiersOf(std::uint16_t state) {
  return {(state & KMOD_SHIFT) != 0, (state & KMOD_CTRL) != 0, (state & KMOD_ALT) != 0,
          (state & KMOD_GUI) != 0};
}

constexpr std::array<std::pair<SDL_Keycode, ui::Key>, 9> keys{{{SDLK_TAB, ui::Key::tab},
                                                               {SDLK_RETURN, ui::Key::enter},
                                                               {SDLK_KP_ENTER, ui::Key::enter},
                                                               {SDLK_SPACE, ui::Key::space},
                                                               {SDLK_ESCAPE, ui::Key::escape},
                                                               {SDLK_LEFT, ui::Key::left},
                                                               {SDLK_RIGHT, ui::Key::right},
                                                               {SDLK_UP, ui::Key::up},
                                                               {SDLK_DOWN, ui::Key::down}}};

}  // namespace

std::optional<ui::KeyEvent> keyEventOf(const SDL_Keysym& keysym) {
  const ui::KeyModifiers modifiers = modifiersOf(keysym.mod);
  for (const auto& [code, key] : keys) {
    if (code == keysym.sym) {
      return ui::KeyEvent{key, modifiers, {}};
    }
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
