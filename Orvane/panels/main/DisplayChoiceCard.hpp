// A card that shows one display and chooses it as the target.
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
  /// Shown when the display has no name.
  std::string fallbackLabel;
  /// Where the display stands, relative to the main one.
  std::string roleLabel;
  bool isSelected = false;
  std::function<void()> action;

  ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] const std::string& title() const;
  [[nodiscard]] ui::View content(bool isDark) const;
  [[nodiscard]] ui::View surface(const ui::Environment& environment, bool isRaised) const;
  [[nodiscard]] ui::View checkBadge() const;
};

}  // namespace orvane
