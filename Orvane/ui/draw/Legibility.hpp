// Contrast as WCAG 2.1 defines it, and the smallest change of a colour that reaches a contrast.
#pragma once

#include "Orvane/ui/draw/Appearance.hpp"

namespace orvane::ui::legibility {

/// From 0 (black) to 1 (white); the alpha is ignored.
/// https://www.w3.org/TR/WCAG21/#dfn-relative-luminance
[[nodiscard]] double relativeLuminance(const Rgba& color);

/// From 1 to 21; the order of the luminances does not matter.
[[nodiscard]] double contrast(double firstLuminance, double secondLuminance);

/// The luminance of a grey background under a translucent colour. The luminance and the opacity are
/// from 0 to 1.
[[nodiscard]] double veiled(double backgroundLuminance, const Rgba& veil, double opacity);

/// The minimum contrast of a text in a colour of the user's choice: 3, or 4.5 with increased
/// contrast.
[[nodiscard]] double requiredContrast(const Appearance& appearance);

/// The colour, with as much black (on a light background) or white (on a dark one) mixed in as the
/// contrast requires, so that the hue stays. Black or white where even they do not reach it.
[[nodiscard]] Rgba textOn(double backgroundLuminance, const Rgba& color, double required);

/// The fill of a button: the colour with as much black mixed in as a white label requires where
/// `whiteFraction` (0 to 1) of white lies on the fill. A light colour is not changed, because its
/// label is black.
[[nodiscard]] Rgba buttonFill(const Rgba& color, double required, double whiteFraction);

/// The label on a button of this colour: black on a light colour such as yellow, otherwise white.
[[nodiscard]] Rgba buttonLabel(const Rgba& color);

}  // namespace orvane::ui::legibility
