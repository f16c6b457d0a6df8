// Service Management's login items. An SDK without the framework's headers gets the little that is
// used of it declared here.
#pragma once

#import <Foundation/Foundation.h>

#if __has_include(<ServiceManagement/ServiceManagement.h>)

#import <ServiceManagement/ServiceManagement.h>

#else

typedef NS_ENUM(NSInteger, SMAppServiceStatus) {
  SMAppServiceStatusNotRegistered = 0,
  SMAppServiceStatusEnabled = 1,
  SMAppServiceStatusRequiresApproval = 2,
  SMAppServiceStatusNotFound = 3,
};

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(13.0))
@interface SMAppService : NSObject
@property(class, readonly) SMAppService* mainAppService;
@property(readonly) SMAppServiceStatus status;
- (BOOL)registerAndReturnError:(NSError* _Nullable* _Nullable)error;
- (BOOL)unregisterAndReturnError:(NSError* _Nullable* _Nullable)error;
@end

NS_ASSUME_NONNULL_END

#endif
