// Scheduling a task on the run loop.
#pragma once

#import <AppKit/AppKit.h>

namespace orvane::appkit {

/// Runs `task` on the main thread after the caller has returned and `afterSeconds` have passed, as
/// soon as the run loop is in one of the modes. Wakes the run loop for it.
void runSoon(NSArray<NSRunLoopMode>* _Nonnull modes, void (^_Nonnull task)(void),
             double afterSeconds = 0);

}  // namespace orvane::appkit
