// RunningApplication is what the system knows of the application object: its delegate, and how it
// is started, opened again and quit.
#pragma once

#include "Orvane/platform/appkit/Application.hpp"

namespace orvane::desk {

class WindowServer;

class RunningApplication {
 public:
  explicit RunningApplication(WindowServer& server) : server_(server) {}

  void setDelegate(appkit::ApplicationDelegate delegate);

  /// The system has started the application.
  void finishLaunching();
  /// The user opens the running application again, which makes it active. Returns the delegate's
  /// answer, which has no effect: there is no document to create.
  bool reopen();
  /// Whether a key meant something to the application, whose window had no use for it.
  bool performKeyEquivalent(const ui::KeyEvent& event);
  /// The delegate is told, and the process ends as soon as what runs now has returned.
  void terminate();
  void processEnded();

 private:
  WindowServer& server_;
  appkit::ApplicationDelegate delegate_;
  bool isTerminating_ = false;
};

}  // namespace orvane::desk
