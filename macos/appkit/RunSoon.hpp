// Work for the run loop's next turn.
#pragma once

#import <AppKit/AppKit.h>

namespace orvane::appkit {

/// Runs `task` on the main thread once the caller has returned, the seconds are over and the run
/// loop is in one of the modes. The run loop is woken for it.
void runSoon(NSArray<NSRunLoopMode>* _Nonnull modes, void (^_Nonnull task)(void),
             double afterSeconds = 0);

}  // namespace orvane::appkit
