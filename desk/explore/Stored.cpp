// Reads the user defaults; a value of the wrong type or out of range counts as missing.
#include "desk/explore/Stored.hpp"

#include <array>
#include <string_view>
#include <variant>

namespace orvane::desk::explore {

namespace {

template <typename Value>
std::optional<Value> valueOf(const UserDefaultsStore& defaults, std::string_view key) {
  const auto value = defaults.value(key);
  const auto* const typed = value ? std::get_if<Value>(&*value) : nullptr;
  return typed == nullptr ? std::nullopt : std::optional(*typed);
}

/// The text if it is one of `known`, otherwise the first of these.
template <std::size_t count>
std::string oneOf(const std::array<std::string_view, count>& known,
                  const std::optional<std::string>& text) {
  for (const std::string_view word : known) {
    if (text == word) {
      return std::string(word);
    }
  }
  return std::string(known.front());
}

}  // namespace

Stored Stored::of(const UserDefaultsStore& defaults) {
  constexpr std::array<std::string_view, 4> modifiers{"option", "control", "shift", "command"};
  constexpr std::array<std::string_view, 3> languages{"system", "english", "chinese"};
  Stored stored;
  stored.selected = valueOf<std::string>(defaults, "selectedDisplayID");
  if (stored.selected && stored.selected->empty()) {
    stored.selected.reset();
  }
  stored.wants = valueOf<bool>(defaults, "isOrvaneEnabled").value_or(false);
  stored.prevents = valueOf<bool>(defaults, "hidesDockOnAllDisplays").value_or(false);
  stored.modifier = oneOf(modifiers, valueOf<std::string>(defaults, "temporaryUnlockModifier"));
  stored.language = oneOf(languages, valueOf<std::string>(defaults, "appLanguage"));
  return stored;
}

std::uint64_t Stored::unlockMask() const {
  if (modifier == "control") {
    return 0x40000;
  }
  if (modifier == "shift") {
    return 0x20000;
  }
  return modifier == "command" ? 0x100000 : 0x80000;
}

}  // namespace orvane::desk::explore
