// The window of the settings panel.
#include "Orvane/windows/OrvaneSettingsWindow.hpp"

#include <utility>

namespace orvane {

OrvaneSettingsWindow::OrvaneSettingsWindow(const OrvaneModel& model,
                                           appkit::HostingView::RootBuilder content)
    : PanelWindow({.className = "OrvaneSettingsWindow",
                   .title = "Orvane Settings",
                   .size = contentSize,
                   .styleMask = appkit::StyleMask::borderless,
                   .cornerRadius = cornerRadius},
                  model, std::move(content)) {}

}  // namespace orvane
