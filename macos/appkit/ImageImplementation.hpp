// The NSImage behind an Image, for the controls that show it.
#pragma once

#import <AppKit/AppKit.h>

#include "Orvane/platform/appkit/Image.hpp"

namespace orvane::appkit {

struct Image::Implementation {
  explicit Implementation(NSImage* _Nonnull symbol) : image(symbol) {}

  NSImage* _Nonnull image;
};

}  // namespace orvane::appkit
