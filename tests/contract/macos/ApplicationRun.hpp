// The environment of an AppKit test: the application object and an autorelease pool.
#pragma once

#import <AppKit/AppKit.h>

namespace orvane {

/// One instance per test, on the main thread; the first launches the application.
class ApplicationRun {
 public:
  ApplicationRun();
  ApplicationRun(const ApplicationRun&) = delete;
  ApplicationRun& operator=(const ApplicationRun&) = delete;
  ~ApplicationRun();

  /// Runs the run loop in a mode and handles events. Then drains the autorelease pool, as an
  /// application does after each turn of its run loop.
  void serve(double seconds, NSString* mode);

 private:
  void* pool_;
};

}  // namespace orvane
