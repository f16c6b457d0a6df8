// Limits of a text, and shortening a line that is too wide, with the same result on every platform.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace orvane::ui {

/// Position of the ellipsis: at the end, or in the middle, which keeps the end readable.
enum class TruncationMode { tail, middle };

/// The number of lines that a text may take, and where it is truncated if it needs more.
struct LineLimit {
  /// 0 or less means any number.
  int lines = 0;
  TruncationMode truncation = TruncationMode::tail;
};

/// The line with "…" in place of what exceeds the width, in points; only the ellipsis where no
/// character fits, even if it is too wide itself. `places` are the byte offsets between characters
/// in rising order, from 0 to the line's length; `widthOf` measures a line. Truncation in the
/// middle gives both ends equal room, but the second begins with a whole word where it takes at
/// most two thirds of the room.
[[nodiscard]] std::string truncatedLine(const std::string& line,
                                        const std::vector<std::size_t>& places, TruncationMode mode,
                                        double maximumWidth,
                                        const std::function<double(const std::string&)>& widthOf);

[[nodiscard]] std::string withoutTrailingBlanks(std::string text);

}  // namespace orvane::ui
