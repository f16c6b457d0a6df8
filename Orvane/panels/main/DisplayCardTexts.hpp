// The texts of the display cards that the displays do not provide themselves.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Orvane/model/OrvaneLanguage.hpp"
#include "Orvane/model/OrvaneModel.hpp"

namespace orvane::DisplayCardTexts {

/// The title of the card at `position`, counted from 0, for a display without a name. It depends
/// only on the position, not on the kind of display.
[[nodiscard]] std::string fallbackLabel(std::size_t position, OrvaneLanguage language);

/// The role of `display` among `displays`: the main one, or its position relative to the first main
/// one, measured between the centres of their frames. "External Display" when neither applies.
[[nodiscard]] std::string roleLabel(const DisplaySnapshot& display,
                                    const std::vector<DisplaySnapshot>& displays,
                                    OrvaneLanguage language);

}  // namespace orvane::DisplayCardTexts
