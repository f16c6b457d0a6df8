// Shows and positions the two panels, keeps the settings attached to the main panel, and releases
// each panel when it closes.
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "Orvane/base/Lifetime.hpp"
#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/windows/OrvaneSettingsWindow.hpp"
#include "Orvane/windows/OrvaneWindow.hpp"

namespace orvane {

/// Main thread only.
class OrvaneWindowController {
 public:
  /// Builds the content of the windows, so that this folder does not depend on the panels. Each
  /// function is called once for each window created.
  struct Contents {
    std::function<appkit::HostingView::RootBuilder(OrvaneModel& model)> mainPanel;
    std::function<appkit::HostingView::RootBuilder(OrvaneModel& model,
                                                   std::function<void()> onClose)>
        settingsPanel;
  };

  /// The process's only controller, created on first use.
  [[nodiscard]] static OrvaneWindowController& shared();

  /// Must be called before the first show.
  void setContents(Contents contents) { contents_ = std::move(contents); }

  /// Brings the main panel to the front, centred on the main screen unless it was visible.
  void show(OrvaneModel& model);
  /// Brings the main panel to the front, and above it the settings panel, centred on it.
  void showSettings(OrvaneModel& model);

  /// These do nothing while the panel does not exist.
  void closeWindow();
  void closeSettingsWindow();
  void miniaturizeWindow();

  /// The panels, while they exist.
  [[nodiscard]] const std::optional<OrvaneWindow>& window() const { return window_; }
  [[nodiscard]] const std::optional<OrvaneSettingsWindow>& settingsWindow() const {
    return settingsWindow_;
  }

 private:
  void centreOnMainScreen();
  void placeSettings();
  void windowWillClose();
  void settingsWindowWillClose();

  Contents contents_;
  std::optional<OrvaneWindow> window_;
  std::optional<OrvaneSettingsWindow> settingsWindow_;
  Lifetime lifetime_;
};

}  // namespace orvane
