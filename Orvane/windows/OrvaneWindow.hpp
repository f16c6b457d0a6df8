// The window of the main panel.
#pragma once

#include "Orvane/windows/PanelWindow.hpp"

namespace orvane {

class OrvaneWindow : public PanelWindow {
 public:
  /// In points.
  static constexpr CGSize contentSize{700, 516};
  static constexpr double cornerRadius = 24;

  OrvaneWindow(const OrvaneModel& model, appkit::HostingView::RootBuilder content);
};

}  // namespace orvane
