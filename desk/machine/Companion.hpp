// Companion is the part of a machine that stands above it and that the machine knows only by what
// it has to tell it: the window server.
#pragma once

#include <cstddef>
#include <optional>

namespace orvane::desk {

class Companion {
 public:
  Companion() = default;
  Companion(const Companion&) = delete;
  Companion& operator=(const Companion&) = delete;
  virtual ~Companion() = default;

  /// Before the application hears of it.
  virtual void displaysChanged() = 0;
  /// The process and its shared objects are gone.
  virtual void processEnded() = 0;
  /// The place in the list of displays of the one with the key window; none without one.
  [[nodiscard]] virtual std::optional<std::size_t> keyDisplayIndex() const = 0;
};

}  // namespace orvane::desk
