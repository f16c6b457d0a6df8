// The colours that give the main panel its look of glass: nearly all are system colours at a low
// opacity, switched on the appearance.
#pragma once

#include "Orvane/ui/Color.hpp"
#include "Orvane/ui/Environment.hpp"
#include "Orvane/ui/Fill.hpp"

namespace orvane::OrvanePalette {

/// The window's own surface, from top to bottom.
[[nodiscard]] ui::Gradient windowGradient(bool isDark);
/// The light that falls on the top of the window.
[[nodiscard]] ui::Gradient windowTopHighlight(bool isDark);
/// Laid over the surface of a panel.
[[nodiscard]] ui::Gradient panelOverlayGradient(bool isDark);
[[nodiscard]] ui::Color secondaryButtonFill(bool isDark, bool isPressed);

/// Of text that is less important. The system's own secondary label is too faint to be read well
/// on glass: black at 0.5 does not even reach a contrast of 4.5 to 1 on pure white.
[[nodiscard]] ui::Color secondaryText(bool isDark);
/// The user's accent colour for text. On dark glass, which is never quite dark, it is lightened, or
/// it could not be read.
[[nodiscard]] ui::Color accentText(bool isDark);

/// The line around the window, around panels and pills, and around small controls.
[[nodiscard]] ui::Color windowRim(bool isDark);
[[nodiscard]] ui::Color panelRim(bool isDark);
[[nodiscard]] ui::Color controlRim(bool isDark);

/// Of a control that cannot be used now.
inline constexpr double disabledOpacity = 0.5;

}  // namespace orvane::OrvanePalette
