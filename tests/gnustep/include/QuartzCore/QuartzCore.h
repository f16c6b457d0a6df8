// The classes of QuartzCore are declared with what GNUstep's AppKit lacks.
#pragma once

#import <AppKit/AppKit.h>
