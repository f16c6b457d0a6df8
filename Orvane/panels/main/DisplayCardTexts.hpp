// The texts of the display cards that do not come from the display itself.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Orvane/model/OrvaneLanguage.hpp"
#include "Orvane/model/OrvaneModel.hpp"

namespace orvane::DisplayCardTexts {

/// The title of the card at `position`, counted from 0, when its display has no name. It is fixed
/// by the position, not by the kind of the display.
[[nodiscard]] std::string fallbackLabel(std::size_t position, OrvaneLanguage language);

/// Where `display` stands relative to the first main one among `displays`, by the centres of their
/// frames.
[[nodiscard]] std::string roleLabel(const DisplaySnapshot& display,
                                    const std::vector<DisplaySnapshot>& displays,
                                    OrvaneLanguage language);

}  // namespace orvane::DisplayCardTexts
