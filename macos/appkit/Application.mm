// The application object on NSApplication.
#include "Orvane/platform/appkit/Application.hpp"

#import <AppKit/AppKit.h>

namespace orvane::appkit {

void Application::setActivationPolicy(ActivationPolicy policy) {
  [NSApplication.sharedApplication
      setActivationPolicy:static_cast<NSApplicationActivationPolicy>(policy)];
}

}  // namespace orvane::appkit
