// The base of the application's two panels: a frameless window of fixed size whose content draws
// its own chrome.
#include "Orvane/windows/PanelWindow.hpp"

#include <memory>
#include <utility>

namespace orvane {

PanelWindow::PanelWindow(const PanelWindowAttributes& attributes, const OrvaneModel& model,
                         appkit::HostingView::RootBuilder content)
    : appkit::Window(appkit::WindowKind::window,
                     CGRectMake(0, 0, attributes.size.width, attributes.size.height),
                     attributes.styleMask) {
  setClassName(attributes.className);
  // A window without a title bar refuses both by default.
  setCanBecomeKeyWindow(true);
  setCanBecomeMainWindow(true);
  setTitle(attributes.title);
  setMovableByWindowBackground(true);
  setReleasedWhenClosed(false);
  setOpaque(false);
  setHasShadow(true);
  setClearBackground();
  setMinSize(attributes.size);
  setMaxSize(attributes.size);
  setCollectionBehavior(appkit::CollectionBehavior::moveToActiveSpace |
                        appkit::CollectionBehavior::managed);

  ZeroSafeAreaHostingView view(std::move(content));
  view.setFrame(CGRectMake(0, 0, attributes.size.width, attributes.size.height));
  view.setLayerCorners(attributes.cornerRadius, appkit::CornerCurve::continuous, true);
  view.setBackdrop(appkit::Backdrop::behindWindow);
  // For content that has no close action of its own.
  view.onDismiss([weakWindow = std::weak_ptr(implementation())] {
    if (auto window = weakWindow.lock()) {
      appkit::Window(std::move(window)).close();
    }
  });
  setContentView(view);
  modelChanges_ = model.changes().observe([view]() mutable { view.setNeedsUpdate(); });
}

}  // namespace orvane
