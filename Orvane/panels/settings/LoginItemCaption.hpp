// A caption in the header of the settings about a problem with the login item: its registration
// failed, needs the user's approval, or needs the application to be installed first.
#pragma once

#include <string>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct LoginItemCaption {
  /// Must outlive the view.
  OrvaneModel* model;

  /// Whether there is a problem to report.
  [[nodiscard]] bool isNeeded() const;
  [[nodiscard]] ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] std::string message() const;
};

}  // namespace orvane
