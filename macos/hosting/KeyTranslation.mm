// Conversion of the window system's key events to the view kit's.
#include "macos/hosting/KeyTranslation.hpp"

#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {
namespace {

ui::Key keyFrom(unichar character) {
  constexpr unichar escapeCharacter = 0x1B;
  switch (character) {
    case NSTabCharacter:
    case NSBackTabCharacter:
      return ui::Key::tab;
    case NSCarriageReturnCharacter:
    case NSEnterCharacter:
      return ui::Key::enter;
    case ' ':
      return ui::Key::space;
    case escapeCharacter:
      return ui::Key::escape;
    case NSLeftArrowFunctionKey:
      return ui::Key::left;
    case NSRightArrowFunctionKey:
      return ui::Key::right;
    case NSUpArrowFunctionKey:
      return ui::Key::up;
    case NSDownArrowFunctionKey:
      return ui::Key::down;
    default:
      return ui::Key::character;
  }
}

ui::KeyModifiers modifiersFrom(NSEventModifierFlags flags) {
  return {(flags & NSEventModifierFlagShift) != 0, (flags & NSEventModifierFlagControl) != 0,
          (flags & NSEventModifierFlagOption) != 0, (flags & NSEventModifierFlagCommand) != 0};
}

}  // namespace

std::optional<ui::KeyEvent> keyEventFrom(NSEvent* event) {
  if (event.type != NSEventTypeKeyDown) {
    return std::nullopt;
  }
  // With Command held, keyboard layouts of other scripts produce Latin letters.
  const bool hasCommand = (event.modifierFlags & NSEventModifierFlagCommand) != 0;
  NSString* const typed = hasCommand ? event.characters : event.charactersIgnoringModifiers;
  if (typed.length == 0) {
    return std::nullopt;
  }
  const ui::Key key = keyFrom([typed characterAtIndex:0]);
  const bool isCharacter = key == ui::Key::character;
  return ui::KeyEvent{key, modifiersFrom(event.modifierFlags),
                      isCharacter ? utf8String(typed.lowercaseString) : std::string()};
}

bool isRepeatedActivation(NSEvent* event) {
  if (event.type != NSEventTypeKeyDown || !event.ARepeat) {
    return false;
  }
  const std::optional<ui::KeyEvent> key = keyEventFrom(event);
  return !key || key->key == ui::Key::space || key->key == ui::Key::enter ||
         key->key == ui::Key::escape || key->key == ui::Key::character;
}

}  // namespace orvane::appkit
