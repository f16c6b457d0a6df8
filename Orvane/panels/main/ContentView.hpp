// The content of the main window: its title bar, the panel that pins the Dock to a display, and the
// panel that prevents the Dock from popping up.
#pragma once

#include <functional>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane {

/// Shows the model and calls its operations. Its own state is whether it has appeared and whether
/// the pointer is over the traffic lights.
struct ContentView {
  /// Of the controls in the title bar.
  struct Actions {
    std::function<void()> close;
    std::function<void()> minimise;
    std::function<void()> showSettings;
  };

  /// Must outlive the view.
  OrvaneModel* model;
  Actions actions;

  [[nodiscard]] ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] ui::View windowBackground(bool isDark) const;
  [[nodiscard]] ui::View titleBar(const ui::Environment& environment) const;
  [[nodiscard]] ui::View trafficLights(const ui::Environment& environment) const;
  [[nodiscard]] ui::View appIcon(const ui::Environment& environment) const;
  [[nodiscard]] ui::View settingsButton() const;
  [[nodiscard]] ui::View panels() const;
  [[nodiscard]] ui::View lockDockPanel() const;
  [[nodiscard]] ui::View displayPicker() const;
  [[nodiscard]] ui::View pinButton() const;
  [[nodiscard]] ui::View hideDockPanel() const;
  [[nodiscard]] ui::View popUpButtons() const;
};

}  // namespace orvane
