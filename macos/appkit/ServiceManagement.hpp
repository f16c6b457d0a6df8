// Service Management's login items. For an SDK without the framework's headers, this header
// declares the parts in use.
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
