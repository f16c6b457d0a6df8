// Activities with NSProcessInfo.
#include "Orvane/platform/appkit/Activity.hpp"

#import <Foundation/Foundation.h>

#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {

struct Activity::Implementation {
  id<NSObject> token;
};

namespace {

id<NSObject> begin(std::string_view reason) {
  NSString* const text = foundationString(reason);
  return [NSProcessInfo.processInfo
      beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                        reason:text == nil ? @"" : text];
}

}  // namespace

Activity::Activity(std::string_view reason)
    : implementation_(std::make_unique<Implementation>(Implementation{begin(reason)})) {}

Activity::~Activity() {
  [NSProcessInfo.processInfo endActivity:implementation_->token];
}

}  // namespace orvane::appkit
