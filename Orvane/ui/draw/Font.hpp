// The system font in a size and a weight.
#pragma once

namespace orvane::ui {

enum class Weight {
  ultraLight = 100,
  thin = 200,
  light = 300,
  regular = 400,
  medium = 500,
  semibold = 600,
  bold = 700,
  heavy = 800,
  black = 900
};

struct Font {
  /// In points.
  double size = 13;
  Weight weight = Weight::regular;
  /// Additional distance between characters, in points.
  double tracking = 0;

  [[nodiscard]] static constexpr Font system(double size, Weight weight = Weight::regular) {
    return {size, weight};
  }
  /// The text styles of macOS, in its sizes.
  [[nodiscard]] static constexpr Font title() { return system(22); }
  [[nodiscard]] static constexpr Font title2() { return system(17); }
  [[nodiscard]] static constexpr Font title3() { return system(15); }
  [[nodiscard]] static constexpr Font headline() { return system(13, Weight::bold); }
  [[nodiscard]] static constexpr Font body() { return system(13); }
  [[nodiscard]] static constexpr Font callout() { return system(12); }
  [[nodiscard]] static constexpr Font subheadline() { return system(11); }
  [[nodiscard]] static constexpr Font caption() { return system(10); }

  [[nodiscard]] constexpr Font bold() const { return {size, Weight::bold, tracking}; }

  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace orvane::ui
