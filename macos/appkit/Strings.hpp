// Conversion between UTF-8 and Foundation's strings.
#pragma once

#include <string>
#include <string_view>

#import <Foundation/Foundation.h>

namespace orvane::appkit {

/// Nil when `text` is not valid UTF-8.
[[nodiscard]] NSString* _Nullable foundationString(std::string_view text);

/// Empty when `text` is nil or has no UTF-8 form.
[[nodiscard]] std::string utf8String(NSString* _Nullable text);

}  // namespace orvane::appkit
