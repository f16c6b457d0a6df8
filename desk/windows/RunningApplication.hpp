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
  /// The user opens the running application again: it becomes active, and the delegate is called.
  /// Its answer has no effect, as there are no documents.
  void reopen();
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
