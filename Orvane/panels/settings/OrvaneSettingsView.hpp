// The content of the settings window: language, unlock shortcut, privacy and support.
#pragma once

#include <functional>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct OrvaneSettingsView {
  /// In points.
  static constexpr double width = 420;
  static constexpr double height = 476;

  /// Must outlive the view.
  OrvaneModel* model;
  /// Unset: closing asks for the end of what the view is shown in.
  std::function<void()> onClose;

  ui::View body(const ui::Environment& environment) const;

 private:
  /// What closes the panel.
  [[nodiscard]] std::function<void()> closing(const ui::Environment& environment) const;
  /// The close button has Escape; this is Command-W, for the keyboard alone.
  [[nodiscard]] ui::View closingByCommand(const ui::Environment& environment) const;
  [[nodiscard]] ui::View header(const ui::Environment& environment) const;
  [[nodiscard]] ui::View cards() const;
  [[nodiscard]] ui::View languageCard() const;
  [[nodiscard]] ui::View shortcutCard() const;
  [[nodiscard]] ui::View privacyCard() const;
  [[nodiscard]] ui::View supportCard() const;
};

}  // namespace orvane
