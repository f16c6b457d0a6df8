// The modifier keys that are held down.
#pragma once

#include <cstdint>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::desk {

class ModifierKeys {
 public:
  /// Any of the kCGEventFlagMask constants, or-ed together; replaces the keys held before.
  void hold(std::uint64_t flags) { flags_ = static_cast<CGEventFlags>(flags); }
  void releaseAll() { flags_ = CGEventFlags{}; }
  [[nodiscard]] CGEventFlags flags() const { return flags_; }

 private:
  CGEventFlags flags_{};
};

}  // namespace orvane::desk
