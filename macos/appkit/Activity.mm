// Activities by NSProcessInfo.
#include "Orvane/platform/appkit/Activity.hpp"

#import <Foundation/Foundation.h>

#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {

struct Activity::Implementation {
  id<NSObject> token;
};

Activity::Activity(std::string_view reason)
    : implementation_(std::make_unique<Implementation>(Implementation{[NSProcessInfo.processInfo
          beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                            reason:foundationString(reason) ?: @"Orvane"]})) {}

Activity::~Activity() {
  [NSProcessInfo.processInfo endActivity:implementation_->token];
}

}  // namespace orvane::appkit
