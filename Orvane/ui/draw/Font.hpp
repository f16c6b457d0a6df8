// The system font at a size in points and a weight, and how far apart its characters stand.
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
  double size = 13;
  Weight weight = Weight::regular;
  // In points, between one character and the next, in addition to what the face asks for.
  double tracking = 0;

  static constexpr Font system(double size, Weight weight = Weight::regular) {
    return {size, weight};
  }
  // The text styles of the Mac, with its sizes.
  static constexpr Font title() { return {22, Weight::regular}; }
  static constexpr Font title2() { return {17, Weight::regular}; }
  static constexpr Font title3() { return {15, Weight::regular}; }
  static constexpr Font headline() { return {13, Weight::bold}; }
  static constexpr Font body() { return {13, Weight::regular}; }
  static constexpr Font callout() { return {12, Weight::regular}; }
  static constexpr Font subheadline() { return {11, Weight::regular}; }
  static constexpr Font caption() { return {10, Weight::regular}; }

  constexpr Font bold() const { return {size, Weight::bold, tracking}; }

  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace orvane::ui
