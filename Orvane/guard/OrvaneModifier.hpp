// The modifier key that unlocks the guard while it is held.
#pragma once

#include <array>
#include <string_view>

#include "Orvane/platform/Quartz.hpp"

namespace orvane {

class OrvaneModifier {
 public:
  enum Value { option, control, shift, command };

  /// In the order in which the interface offers them.
  static constexpr std::array<Value, 4> allCases = {option, control, shift, command};

  constexpr OrvaneModifier(Value value) : value_(value) {}  // NOLINT(google-explicit-constructor)
  constexpr operator Value() const { return value_; }       // NOLINT(google-explicit-constructor)

  /// "option", "control", "shift" or "command".
  [[nodiscard]] std::string_view rawValue() const;
  /// Any other text gives `option`.
  [[nodiscard]] static OrvaneModifier fromRawValue(std::string_view rawValue);

  /// The bit in an event's flags that is set while the key is held.
  [[nodiscard]] constexpr CGEventFlags flagMask() const {
    switch (value_) {
      case control:
        return kCGEventFlagMaskControl;
      case shift:
        return kCGEventFlagMaskShift;
      case command:
        return kCGEventFlagMaskCommand;
      case option:
        break;
    }
    return kCGEventFlagMaskAlternate;
  }

  /// Whether the key is held according to an event's flags; other keys do not matter.
  [[nodiscard]] constexpr bool isHeld(CGEventFlags flags) const {
    return (flags & flagMask()) == flagMask();
  }

 private:
  Value value_;
};

}  // namespace orvane
