// The content of the settings window: language, unlock shortcut, privacy and support.
#pragma once

#include <functional>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct OrvaneSettingsView {
  /// Must outlive the view.
  OrvaneModel* model;
  /// When unset, closing dismisses the view's window.
  std::function<void()> onClose;

  [[nodiscard]] ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] std::function<void()> closeAction(const ui::Environment& environment) const;
  /// Handles Command-W; the visible close button handles Escape.
  [[nodiscard]] ui::View hiddenCloseButton(const ui::Environment& environment) const;
  [[nodiscard]] ui::View header(const ui::Environment& environment) const;
  [[nodiscard]] ui::View cards() const;
  [[nodiscard]] ui::View languageCard() const;
  [[nodiscard]] ui::View shortcutCard() const;
  [[nodiscard]] ui::View privacyCard() const;
  [[nodiscard]] ui::View supportCard() const;
};

}  // namespace orvane
