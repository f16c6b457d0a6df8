// A caption in the header of the settings, only while the login item has something to say: that its
// registration failed, that the user has to approve it, or has to install the application first.
#pragma once

#include <string>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct LoginItemCaption {
  /// Must outlive the view.
  OrvaneModel* model;

  /// Whether there is something to say.
  [[nodiscard]] bool isNeeded() const;
  ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] std::string message() const;
};

}  // namespace orvane
