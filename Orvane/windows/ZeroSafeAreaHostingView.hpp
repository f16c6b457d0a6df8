// The hosting view of the frameless panels: its content extends to the window's top edge, because
// there is no title bar to avoid.
#pragma once

#include <utility>

#include "Orvane/platform/appkit/HostingView.hpp"

namespace orvane {

class ZeroSafeAreaHostingView : public appkit::HostingView {
 public:
  explicit ZeroSafeAreaHostingView(RootBuilder rootView)
      : appkit::HostingView(std::move(rootView)) {
    setRespectsSafeArea(false);
  }
};

}  // namespace orvane
