// RunningApplication is the application object: its delegate, launching, reopening and quitting.
#pragma once

#include "Orvane/platform/appkit/Application.hpp"

namespace orvane::desk {

class WindowServer;

class RunningApplication {
 public:
  explicit RunningApplication(WindowServer& server) : server_(server) {}

  void setDelegate(appkit::ApplicationDelegate delegate);

  /// Calls the delegate's didFinishLaunching.
  void finishLaunching();
  /// The user opens the running application again, which makes it active. Returns the delegate's
  /// answer, which has no effect: there is no document to create.
  bool reopen();
  /// Offers the delegate a key that no window has handled; whether it handled it.
  bool performKeyEquivalent(const ui::KeyEvent& event);
  /// Calls the delegate's willTerminate; the process ends after the current task or handler.
  void terminate();
  void processEnded();

 private:
  WindowServer& server_;
  appkit::ApplicationDelegate delegate_;
  bool isTerminating_ = false;
};

}  // namespace orvane::desk
