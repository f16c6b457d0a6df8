// The window of the main panel.
#include "Orvane/windows/OrvaneWindow.hpp"

#include <utility>

namespace orvane {

OrvaneWindow::OrvaneWindow(const OrvaneModel& model, appkit::HostingView::RootBuilder content)
    : PanelWindow({.className = "OrvaneWindow",
                   .title = "Orvane",
                   .size = contentSize,
                   // Can be minimised although it has no title bar.
                   .styleMask = appkit::StyleMask::miniaturizable,
                   .cornerRadius = cornerRadius},
                  model, std::move(content)) {}

}  // namespace orvane
