// The shim's AppKit.h declares the classes of QuartzCore.
#pragma once

#import <AppKit/AppKit.h>
