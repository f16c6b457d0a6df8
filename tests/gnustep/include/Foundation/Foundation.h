// GNUstep's Foundation, and declarations of what the application uses beyond it.
#pragma once

#include <ApplicationServices/ApplicationServices.h>

// GNUstep declares its result as id, on which property syntax does not compile.
#define autoupdatingCurrentLocale autoupdatingCurrentLocaleOfGnustep
#include_next <Foundation/Foundation.h>
#undef autoupdatingCurrentLocale

#define API_AVAILABLE(...)
#define NS_VALID_UNTIL_END_OF_SCOPE __attribute__((objc_precise_lifetime))

@interface NSRunLoop (OrvaneShim)
- (void)performInModes:(NSArray*)modes block:(void (^)(void))block;
@end

@interface NSTimer (OrvaneShim)
@property NSTimeInterval tolerance;
@property(readonly, getter=isValid) BOOL valid;
@end

@interface NSURL (OrvaneShim)
+ (instancetype)URLWithString:(NSString*)text encodingInvalidCharacters:(BOOL)encode;
@end

@interface NSLocale (OrvaneShim)
+ (NSLocale*)autoupdatingCurrentLocale;
@end
