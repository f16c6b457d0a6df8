// The colours of the settings panel, cooler and bluer than those of the main panel.
#pragma once

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/draw/Fill.hpp"

namespace orvane::SettingsPalette {

[[nodiscard]] ui::Color blue();
[[nodiscard]] ui::Color sky();
[[nodiscard]] ui::Color indigo();
[[nodiscard]] ui::Color mint();
[[nodiscard]] ui::Color windowTop();
[[nodiscard]] ui::Color windowMid();
[[nodiscard]] ui::Color windowBottom();
[[nodiscard]] ui::Color buttonFill();

/// For paragraphs: fainter than titles, with a contrast of at least 4.5 to 1.
[[nodiscard]] ui::Color statementText();

[[nodiscard]] ui::Fill windowGradient(bool isDark);
[[nodiscard]] ui::Fill headerGradient(bool isDark);
[[nodiscard]] ui::Fill dividerGradient(bool isDark);

}  // namespace orvane::SettingsPalette
