// The hosting view of the frameless panels: content laid out against the window's top edge touches
// it, as there is no title bar to keep clear of.
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
