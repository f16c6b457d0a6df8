// The colours that give the main panel its look of glass: nearly all are system colours at a low
// opacity, switched on the appearance.
#pragma once

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/draw/Fill.hpp"
#include "Orvane/ui/views/Environment.hpp"

namespace orvane::OrvanePalette {

/// The window's own surface, from top to bottom.
[[nodiscard]] ui::Gradient windowGradient(bool isDark);
/// The light that falls on the top of the window.
[[nodiscard]] ui::Gradient windowTopHighlight(bool isDark);
/// Laid over the surface of a panel.
[[nodiscard]] ui::Gradient panelOverlayGradient(bool isDark);
/// The accent colour as a text on a panel, also under a veil of the accent colour in that opacity.
[[nodiscard]] ui::Color accentText(bool isDark, double veil = 0);
[[nodiscard]] ui::Color secondaryButtonFill(bool isDark, bool isPressed);

/// The line around the window, around panels and pills, and around small controls.
[[nodiscard]] ui::Color windowRim(bool isDark);
[[nodiscard]] ui::Color panelRim(bool isDark);
[[nodiscard]] ui::Color controlRim(bool isDark);

/// The rim as it is, or a clear line in its place where the user asks for contrast.
[[nodiscard]] ui::Color outline(const ui::Color& rim, const ui::Environment& environment);

/// Of a control that cannot be used now.
inline constexpr double disabledOpacity = 0.5;

}  // namespace orvane::OrvanePalette
