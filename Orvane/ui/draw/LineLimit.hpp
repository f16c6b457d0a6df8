// The number of lines that a text may take, and where a text is truncated that needs more.
#pragma once

namespace orvane::ui {

/// Position of the ellipsis: at the end, or in the middle, which keeps the end readable.
enum class TruncationMode { tail, middle };

struct LineLimit {
  // NOLINTNEXTLINE: a number is a limit
  constexpr LineLimit(int count, TruncationMode mode = TruncationMode::tail)
      : lines(count), truncation(mode) {}

  /// 0 or less means any number.
  int lines;
  TruncationMode truncation;
};

}  // namespace orvane::ui
