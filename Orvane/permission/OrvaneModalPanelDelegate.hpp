// Ends the modal session of the permission alert exactly once, whether by a button or by the
// panel's close control.
#pragma once

#include "Orvane/platform/appkit/Application.hpp"

namespace orvane {

class OrvaneModalPanelDelegate {
 public:
  /// Stops the session with `response` unless it has been stopped.
  void stopModalOnce(int response) {
    if (!didStopModal_) {
      didStopModal_ = true;
      appkit::Application::stopModal(response);
    }
  }

  /// Closing the panel counts as declining.
  void windowWillClose() { stopModalOnce(appkit::ModalResponse::alertSecondButton); }

 private:
  bool didStopModal_ = false;
};

}  // namespace orvane
