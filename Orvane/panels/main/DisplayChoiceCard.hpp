// A card that shows a display and selects it as the target.
#pragma once

#include <functional>
#include <string>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct DisplayChoiceCard {
  /// In points.
  static constexpr double width = 176;
  static constexpr double height = 142;
  static constexpr double cornerRadius = 12;

  DisplaySnapshot display;
  /// The title of a display without a name.
  std::string fallbackLabel;
  /// The display's position relative to the main one.
  std::string roleLabel;
  bool isSelected = false;
  std::function<void()> action;

  [[nodiscard]] ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] const std::string& title() const;
  [[nodiscard]] ui::View content(bool isDark) const;
  [[nodiscard]] ui::View surface(const ui::Environment& environment, bool isRaised) const;
  [[nodiscard]] ui::View checkBadge() const;
};

}  // namespace orvane
