// The sheet in which the user chooses an application for the Accessibility list.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::desk {

class SystemSettings;

struct ApplicationChooser {
  SystemSettings* settings;

  ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] ui::View row(const std::string& name) const;
};

}  // namespace orvane::desk
