// A width and a height in points.
#pragma once

namespace orvane::ui {

struct Size {
  double width = 0;
  double height = 0;

  friend bool operator==(const Size&, const Size&) = default;
};

}  // namespace orvane::ui
