// The colours of the main panel: mostly system colours at low opacities, for its look of glass.
#pragma once

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/draw/Fill.hpp"
#include "Orvane/ui/views/Environment.hpp"

namespace orvane::OrvanePalette {

/// The window's surface, from top to bottom.
[[nodiscard]] ui::Fill windowGradient(bool isDark);
/// The highlight at the top of the window.
[[nodiscard]] ui::Fill windowTopHighlight(bool isDark);
/// Lies over the fill of a panel.
[[nodiscard]] ui::Fill panelOverlayGradient(bool isDark);
/// The accent colour for text on a panel, adjusted for contrast. Between the panel and the text may
/// be a veil of the accent colour; `veil` is its opacity.
[[nodiscard]] ui::Color accentText(bool isDark, double veil = 0);
[[nodiscard]] ui::Color secondaryButtonFill(bool isDark, bool isPressed);

/// The outlines of the window, of panels and pills, and of small controls.
[[nodiscard]] ui::Color windowRim(bool isDark);
[[nodiscard]] ui::Color panelRim(bool isDark);
[[nodiscard]] ui::Color controlRim(bool isDark);

/// `rim`, or a distinct outline instead with Increase Contrast.
[[nodiscard]] ui::Color outline(const ui::Color& rim, const ui::Environment& environment);

/// The opacity of a disabled control.
inline constexpr double disabledOpacity = 0.5;

}  // namespace orvane::OrvanePalette
