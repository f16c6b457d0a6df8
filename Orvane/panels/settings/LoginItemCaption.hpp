// A caption in the header of the settings, only while the login item has something to say: that its
// registration failed, or that the user has to approve it.
#pragma once

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/ui/View.hpp"

namespace orvane {

struct LoginItemCaption {
  /// Must outlive the view.
  OrvaneModel* model;

  /// Whether there is something to say.
  [[nodiscard]] bool isNeeded() const;
  ui::View body(const ui::Environment& environment) const;
};

}  // namespace orvane
