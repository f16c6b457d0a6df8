// What the pages of System Settings are made of.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

class SystemSettings;

/// The layout of all pages: the title beside the window's buttons, after a Back button if the
/// current page has a parent, and the content below.
[[nodiscard]] ui::View titledPage(SystemSettings& settings, const std::string& title,
                                  const ui::View& content);

/// A box of rows with hairlines between them, which begin `hairlineInset` points from the leading
/// edge. `isHighlighted`: it is a drop target under a drag.
[[nodiscard]] ui::View settingsGroup(std::vector<ui::View> rows, double hairlineInset = 10,
                                     bool isHighlighted = false);

/// The small switch at the end of a row. The label is for accessibility and not drawn.
[[nodiscard]] ui::View settingsSwitch(const std::string& label, bool isOn,
                                      std::function<void()> onToggle);

/// A coloured plate with a white symbol; `side` is in points.
[[nodiscard]] ui::View settingsBadge(const std::string& symbol, const ui::Color& color,
                                     double side = 20);

/// The icon of an application; `side` is in points.
[[nodiscard]] ui::View applicationIcon(const std::string& name, double side);

}  // namespace orvane::desk
