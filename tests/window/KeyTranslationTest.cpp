// The translation of the computer's keys.
#include <gtest/gtest.h>

#include "Orvane/platform/Quartz.hpp"
#include "showroom/window/KeyTranslation.hpp"

namespace orvane::showroom {
namespace {

SDL_Keysym pressed(SDL_Keycode code, int modifiers = KMOD_NONE) {
  SDL_Keysym keysym{};
  keysym.sym = code;
  keysym.mod = static_cast<std::uint16_t>(modifiers);
  return keysym;
}

TEST(KeyTranslationTest, TranslatesTheKeysForMenusAndPanels) {
  EXPECT_EQ(keyEventOf(pressed(SDLK_TAB))->key, ui::Key::tab);
  EXPECT_EQ(keyEventOf(pressed(SDLK_RETURN))->key, ui::Key::enter);
  EXPECT_EQ(keyEventOf(pressed(SDLK_KP_ENTER))->key, ui::Key::enter);
  EXPECT_EQ(keyEventOf(pressed(SDLK_SPACE))->key, ui::Key::space);
  EXPECT_EQ(keyEventOf(pressed(SDLK_ESCAPE))->key, ui::Key::escape);
  EXPECT_EQ(keyEventOf(pressed(SDLK_LEFT))->key, ui::Key::left);
  EXPECT_EQ(keyEventOf(pressed(SDLK_RIGHT))->key, ui::Key::right);
  EXPECT_EQ(keyEventOf(pressed(SDLK_UP))->key, ui::Key::up);
  EXPECT_EQ(keyEventOf(pressed(SDLK_DOWN))->key, ui::Key::down);
}

TEST(KeyTranslationTest, ACharacterKeyIgnoresItsModifiers) {
  const auto key = keyEventOf(pressed(SDLK_w, KMOD_RGUI));
  ASSERT_TRUE(key);
  EXPECT_EQ(key->key, ui::Key::character);
  EXPECT_EQ(key->characters, "w");
  EXPECT_EQ(key->modifiers, (ui::KeyModifiers{false, false, false, true}));
}

TEST(KeyTranslationTest, ModifiersAndUnusedKeysAreIgnored) {
  EXPECT_FALSE(keyEventOf(pressed(SDLK_LALT, KMOD_LALT)));
  EXPECT_FALSE(keyEventOf(pressed(SDLK_F5)));
}

TEST(KeyTranslationTest, TranslatesTheFourModifiers) {
  EXPECT_EQ(modifierFlagsOf(KMOD_NONE), 0U);
  EXPECT_EQ(modifierFlagsOf(KMOD_LALT), std::uint64_t{kCGEventFlagMaskAlternate});
  EXPECT_EQ(modifierFlagsOf(KMOD_RCTRL), std::uint64_t{kCGEventFlagMaskControl});
  EXPECT_EQ(modifierFlagsOf(static_cast<SDL_Keymod>(KMOD_LSHIFT | KMOD_LGUI)),
            std::uint64_t{kCGEventFlagMaskShift} | std::uint64_t{kCGEventFlagMaskCommand});
  EXPECT_EQ(keyEventOf(pressed(SDLK_TAB, KMOD_LSHIFT))->modifiers,
            (ui::KeyModifiers{true, false, false, false}));
}

}  // namespace
}  // namespace orvane::showroom
