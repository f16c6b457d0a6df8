// The parts of ApplicationServices that the application uses and Orvane/platform/Quartz.hpp does
// not declare: drawing with Core Graphics and Core Text.
#pragma once

#include <CoreFoundation/CFCGTypes.h>

extern "C" {

// Core Foundation.
using CFAttributedStringRef = const struct __CFAttributedString*;
using CFDictionaryRef = const struct __CFDictionary*;
using CFBooleanRef = const struct __CFBoolean*;
CFTypeID CFBooleanGetTypeID();
extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;

// Core Graphics: geometry.
extern const CGRect CGRectZero;
extern const CGAffineTransform CGAffineTransformIdentity;
CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy);
CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy);
CGRect CGRectUnion(CGRect first, CGRect second);
CGAffineTransform CGAffineTransformMake(CGFloat a, CGFloat b, CGFloat c, CGFloat d, CGFloat tx,
                                        CGFloat ty);

// Core Graphics: drawing.
using CGContextRef = struct CGContext*;
using CGColorRef = struct CGColor*;
using CGColorSpaceRef = struct CGColorSpace*;
using CGPathRef = const struct CGPath*;
using CGMutablePathRef = struct CGPath*;
using CGGradientRef = struct CGGradient*;
using CGGradientDrawingOptions = std::uint32_t;
constexpr CGGradientDrawingOptions kCGGradientDrawsBeforeStartLocation = 1;
constexpr CGGradientDrawingOptions kCGGradientDrawsAfterEndLocation = 2;
enum CGBlendMode : std::int32_t { kCGBlendModeNormal = 0, kCGBlendModeSourceIn = 18 };
extern const CFStringRef kCGColorSpaceSRGB;
extern const CFStringRef kCGColorBlack;
CGColorRef CGColorCreateSRGB(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
CGColorRef CGColorGetConstantColor(CFStringRef name);
CGColorSpaceRef CGColorSpaceCreateWithName(CFStringRef name);
CGGradientRef CGGradientCreateWithColorComponents(CGColorSpaceRef space, const CGFloat* components,
                                                  const CGFloat* locations, std::size_t count);
CGMutablePathRef CGPathCreateMutable();
void CGPathMoveToPoint(CGMutablePathRef path, const CGAffineTransform* transform, CGFloat x,
                       CGFloat y);
void CGPathAddLineToPoint(CGMutablePathRef path, const CGAffineTransform* transform, CGFloat x,
                          CGFloat y);
void CGPathAddCurveToPoint(CGMutablePathRef path, const CGAffineTransform* transform, CGFloat x1,
                           CGFloat y1, CGFloat x2, CGFloat y2, CGFloat x, CGFloat y);
void CGPathCloseSubpath(CGMutablePathRef path);

CGAffineTransform CGContextGetCTM(CGContextRef context);
void CGContextSaveGState(CGContextRef context);
void CGContextRestoreGState(CGContextRef context);
void CGContextConcatCTM(CGContextRef context, CGAffineTransform transform);
void CGContextTranslateCTM(CGContextRef context, CGFloat x, CGFloat y);
void CGContextScaleCTM(CGContextRef context, CGFloat x, CGFloat y);
void CGContextAddPath(CGContextRef context, CGPathRef path);
void CGContextAddRect(CGContextRef context, CGRect rect);
void CGContextClip(CGContextRef context);
void CGContextEOClip(CGContextRef context);
void CGContextClipToRect(CGContextRef context, CGRect rect);
CGRect CGContextGetClipBoundingBox(CGContextRef context);
void CGContextSetFillColorWithColor(CGContextRef context, CGColorRef color);
void CGContextSetLineWidth(CGContextRef context, CGFloat width);
void CGContextReplacePathWithStrokedPath(CGContextRef context);
void CGContextFillPath(CGContextRef context);
void CGContextFillRect(CGContextRef context, CGRect rect);
void CGContextDrawLinearGradient(CGContextRef context, CGGradientRef gradient, CGPoint start,
                                 CGPoint end, CGGradientDrawingOptions options);
void CGContextSetShadowWithColor(CGContextRef context, CGSize offset, CGFloat blur,
                                 CGColorRef color);
void CGContextSetAlpha(CGContextRef context, CGFloat alpha);
void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode);
void CGContextBeginTransparencyLayerWithRect(CGContextRef context, CGRect rect,
                                             CFDictionaryRef auxiliary);
void CGContextEndTransparencyLayer(CGContextRef context);
void CGContextSetTextMatrix(CGContextRef context, CGAffineTransform transform);
void CGContextSetTextPosition(CGContextRef context, CGFloat x, CGFloat y);

// Core Text.
using CTLineRef = const struct __CTLine*;
using CTTypesetterRef = const struct __CTTypesetter*;
extern const CFStringRef kCTFontAttributeName;
extern const CFStringRef kCTForegroundColorAttributeName;
extern const CFStringRef kCTTrackingAttributeName;
CTLineRef CTLineCreateWithAttributedString(CFAttributedStringRef string);
double CTLineGetTypographicBounds(CTLineRef line, CGFloat* ascent, CGFloat* descent,
                                  CGFloat* leading);
void CTLineDraw(CTLineRef line, CGContextRef context);
CTTypesetterRef CTTypesetterCreateWithAttributedString(CFAttributedStringRef string);
CFIndex CTTypesetterSuggestLineBreak(CTTypesetterRef typesetter, CFIndex start, double width);

}  // extern "C"
