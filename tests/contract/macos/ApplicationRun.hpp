// What a test of AppKit needs around it: the application object, and a pool for what is
// autoreleased.
#pragma once

#import <AppKit/AppKit.h>

namespace orvane {

/// One for each test, on the main thread; the first one launches the application.
class ApplicationRun {
 public:
  ApplicationRun();
  ApplicationRun(const ApplicationRun&) = delete;
  ApplicationRun& operator=(const ApplicationRun&) = delete;
  ~ApplicationRun();

  /// Serves the run loop in a mode, and handles the events that come. Then what the test has had
  /// autoreleased goes, as after each turn of an application's run loop.
  void serve(double seconds, NSString* mode);

 private:
  void* pool_;
};

}  // namespace orvane
