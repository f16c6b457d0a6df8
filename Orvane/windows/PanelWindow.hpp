// The base of the application's two panels: a frameless window of fixed size whose content draws
// its own chrome.
#pragma once

#include <cstdint>
#include <string_view>

#include "Orvane/base/Signal.hpp"
#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/windows/ZeroSafeAreaHostingView.hpp"

namespace orvane {

/// Sizes and radii in points.
struct PanelWindowAttributes {
  std::string_view className;
  std::string_view title;
  CGSize size{};
  std::uint64_t styleMask = 0;
  double cornerRadius = 0;
};

/// A handle to a window, and the subscription that updates its content when the model changes.
class PanelWindow : public appkit::Window {
 protected:
  PanelWindow(const PanelWindowAttributes& attributes, const OrvaneModel& model,
              appkit::HostingView::RootBuilder content);

 private:
  Subscription modelChanges_;
};

}  // namespace orvane
