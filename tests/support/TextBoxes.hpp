// The boxes of a view's texts, to compare the layout of a view on two platforms.
#pragma once

#include <string>

#include "Orvane/ui/draw/TextMeasurer.hpp"
#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane {

/// One line for each line of text that the host draws: the name, the text and its box (left, top,
/// width, height, in points to a tenth), separated by tabs. `origin` is the host's position.
std::string textBoxes(const std::string& name, const ui::ViewHost& host, ui::Point origin,
                      ui::TextMeasurer& measurer);

}  // namespace orvane
