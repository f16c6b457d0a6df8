// The layout that all pages of System Settings share.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

class SystemSettings;

/// The title beside the window's buttons, after a Back button if the current page has a parent, and
/// the content below.
[[nodiscard]] ui::View titledPage(SystemSettings& settings, const std::string& title,
                                  const ui::View& content);

}  // namespace orvane::desk
