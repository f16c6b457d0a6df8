// The window of the settings panel.
#pragma once

#include "Orvane/windows/PanelWindow.hpp"

namespace orvane {

class OrvaneSettingsWindow : public PanelWindow {
 public:
  /// In points.
  static constexpr CGSize contentSize{420, 476};
  static constexpr double cornerRadius = 28;

  OrvaneSettingsWindow(const OrvaneModel& model, appkit::HostingView::RootBuilder content);
};

}  // namespace orvane
