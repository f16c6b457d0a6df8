// Colours that can be read: contrast as WCAG 2.1 defines it, and the smallest change of a colour
// that reaches it.
#pragma once

#include "Orvane/ui/draw/Appearance.hpp"

namespace orvane::ui::legibility {

// From 0 (black) to 1 (white); the opacity is not looked at.
// https://www.w3.org/TR/WCAG21/#dfn-relative-luminance
double relativeLuminance(const Rgba& color);

// From 1 to 21, whichever of the two is lighter.
double contrast(double firstLuminance, double secondLuminance);

// The luminance of a grey ground under a veil of a colour; both numbers are from 0 to 1.
double veiled(double groundLuminance, const Rgba& veil, double opacity);

// What a text or a label in a colour of the user's choice must reach: 3, or 4.5 where the user asks
// for contrast.
double requiredContrast(const Appearance& appearance);

// The colour itself if it has the required contrast to the ground. Otherwise with as much black
// mixed in as it takes on a light ground, or white on a dark one: the hue stays. Black or white
// where even they do not reach it.
Rgba textOn(double groundLuminance, const Rgba& color, double required);

// The fill of a button: with as much black mixed in as a white label takes, with this share of
// white (0 to 1) on top of the fill. A light colour stays, because its label is black.
Rgba buttonFill(const Rgba& color, double required, double lightShare);

// The label on such a fill: black on a light colour, such as yellow, and white on any other.
Rgba buttonLabel(const Rgba& color);

}  // namespace orvane::ui::legibility
