// A page of the simulated System Settings.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

class SystemSettings;

struct SettingsPage {
  using MakeView = std::function<ui::View(SystemSettings&)>;

  /// Unique among the window's pages.
  std::string name;
  /// The page that the Back button leads to; empty for none.
  std::string parent;
  /// A link that begins with one of these opens the page.
  std::vector<std::string> links;
  MakeView makeView;
};

}  // namespace orvane::desk
