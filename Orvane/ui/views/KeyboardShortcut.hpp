// Key events, and the shortcuts that activate buttons.
#pragma once

#include <string>

namespace orvane::ui {

enum class Key { character, tab, enter, space, escape, left, right, up, down };

struct KeyModifiers {
  bool shift = false;
  bool control = false;
  bool option = false;
  bool command = false;

  friend bool operator==(const KeyModifiers&, const KeyModifiers&) = default;
};

struct KeyEvent {
  Key key = Key::character;
  KeyModifiers modifiers = {};
  /// For Key::character: what the key types with Command but without other modifiers, in lower case
  /// and UTF-8.
  std::string characters = {};
};

/// The key event that activates a control.
struct KeyboardShortcut : KeyEvent {
  /// Return, which also gives a bordered button the accent colour.
  [[nodiscard]] static KeyboardShortcut defaultAction() { return {{.key = Key::enter}}; }
  /// Escape.
  [[nodiscard]] static KeyboardShortcut cancelAction() { return {{.key = Key::escape}}; }
  /// Command and a character.
  [[nodiscard]] static KeyboardShortcut command(std::string characters) {
    return {{Key::character, {.command = true}, std::move(characters)}};
  }

  [[nodiscard]] bool matches(const KeyEvent& event) const {
    return key == event.key && modifiers == event.modifiers &&
           (key != Key::character || characters == event.characters);
  }
  [[nodiscard]] bool isDefault() const { return key == Key::enter && modifiers == KeyModifiers{}; }
};

}  // namespace orvane::ui
