// WindowWatch is the oracle for the places of the windows: where they open, that they stay there,
// that users can drag them, and that the card of the chosen display is in sight. It shares no code
// with the application.
#pragma once

#include <optional>

#include "desk/explore/Step.hpp"
#include "desk/explore/Violation.hpp"

namespace orvane::desk::explore {

class WindowWatch {
 public:
  [[nodiscard]] std::optional<Violation> check(const Step& step);

 private:
  using Check = std::optional<Violation>;

  [[nodiscard]] Check checkPanel(const Step& step) const;
  [[nodiscard]] Check checkSettings(const Step& step) const;
  [[nodiscard]] Check checkGuide(const Step& step) const;
  [[nodiscard]] Check checkDrag(const Step& step) const;
  [[nodiscard]] Check checkChosenCard(const Step& step);

  /// A display was chosen in the panel, or the panel was opened, and neither have the displays
  /// changed since nor has the user scrolled the cards.
  bool showsChosenCard_ = false;
};

}  // namespace orvane::desk::explore
