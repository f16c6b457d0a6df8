// Draws the view kit with Core Graphics and Core Text.
#include "macos/canvas/QuartzCanvas.hpp"

#import <AppKit/AppKit.h>

#include <algorithm>
#include <cmath>

#include "Orvane/base/CFRef.hpp"
#include "macos/appkit/Strings.hpp"
#include "macos/canvas/CoreTextMeasurer.hpp"
#include "macos/canvas/SystemImages.hpp"

namespace orvane::appkit {
namespace {

CGPoint pointFrom(ui::Point point) {
  return CGPointMake(point.x, point.y);
}

CGRect rectFrom(const ui::Rect& rect) {
  return CGRectMake(rect.x, rect.y, rect.width, rect.height);
}

CFRef<CGColorRef> colorFrom(const ui::Rgba& color) {
  return CFRef<CGColorRef>::owning(
      CGColorCreateSRGB(color.red, color.green, color.blue, color.alpha));
}

CFRef<CGPathRef> pathFrom(const ui::Shape& shape) {
  CGMutablePathRef const path = CGPathCreateMutable();
  const ui::Path outline = shape.path();
  for (const ui::PathElement& element : outline.elements()) {
    switch (element.kind) {
      case ui::PathElement::Kind::move:
        CGPathMoveToPoint(path, nullptr, element.to.x, element.to.y);
        break;
      case ui::PathElement::Kind::line:
        CGPathAddLineToPoint(path, nullptr, element.to.x, element.to.y);
        break;
      case ui::PathElement::Kind::cubic:
        CGPathAddCurveToPoint(path, nullptr, element.control1.x, element.control1.y,
                              element.control2.x, element.control2.y, element.to.x, element.to.y);
        break;
      case ui::PathElement::Kind::close:
        CGPathCloseSubpath(path);
        break;
    }
  }
  return CFRef<CGPathRef>::owning(path);
}

CFRef<CGGradientRef> gradientFrom(const ui::Paint& paint) {
  std::vector<CGFloat> components;
  std::vector<CGFloat> locations;
  for (const ui::PaintStop& stop : paint.stops) {
    components.insert(components.end(),
                      {stop.color.red, stop.color.green, stop.color.blue, stop.color.alpha});
    locations.push_back(stop.location);
  }
  const auto space = CFRef<CGColorSpaceRef>::owning(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
  return CFRef<CGGradientRef>::owning(CGGradientCreateWithColorComponents(
      space.get(), components.data(), locations.data(), locations.size()));
}

/// Fills the current path and clears it.
void paintPath(CGContextRef context, const ui::Paint& paint) {
  if (paint.isSolid()) {
    CGContextSetFillColorWithColor(context, colorFrom(paint.stops.front().color).get());
    CGContextFillPath(context);
    return;
  }
  CGContextClip(context);
  CGContextDrawLinearGradient(
      context, gradientFrom(paint).get(), pointFrom(paint.start), pointFrom(paint.end),
      kCGGradientDrawsBeforeStartLocation | kCGGradientDrawsAfterEndLocation);
}

void drawImage(CGContextRef context, NSImage* image, CGRect rect) {
  CGContextSaveGState(context);
  [NSGraphicsContext saveGraphicsState];
  NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:context
                                                                             flipped:YES];
  NSGraphicsContext.currentContext.imageInterpolation = NSImageInterpolationHigh;
  [image drawInRect:rect];
  [NSGraphicsContext restoreGraphicsState];
  CGContextRestoreGState(context);
}

}  // namespace

QuartzCanvas::QuartzCanvas(CGContextRef context, double scaleFactor, double shadowUnitsPerPoint)
    : context_(context),
      scaleFactor_(scaleFactor),
      shadowUnitsPerPoint_(shadowUnitsPerPoint),
      initialTransform_(CGContextGetCTM(context)) {}

void QuartzCanvas::save() {
  CGContextSaveGState(context_);
}

void QuartzCanvas::restore() {
  CGContextRestoreGState(context_);
}

void QuartzCanvas::transform(const ui::Transform& transform) {
  CGContextConcatCTM(context_, CGAffineTransformMake(transform.scale, 0, 0, transform.scale,
                                                     transform.x, transform.y));
}

void QuartzCanvas::clip(const ui::Shape& shape) {
  if (shape.rect.isEmpty()) {
    CGContextClipToRect(context_, CGRectZero);
    return;
  }
  CGContextAddPath(context_, pathFrom(shape).get());
  CGContextClip(context_);
}

void QuartzCanvas::fill(const ui::Shape& shape, const ui::Paint& paint) {
  if (shape.rect.isEmpty() || paint.stops.empty()) {
    return;
  }
  CGContextSaveGState(context_);
  CGContextAddPath(context_, pathFrom(shape).get());
  paintPath(context_, paint);
  CGContextRestoreGState(context_);
}

void QuartzCanvas::stroke(const ui::Shape& shape, const ui::Paint& paint, double lineWidth) {
  if (shape.rect.isEmpty() || paint.stops.empty() || !(lineWidth > 0)) {
    return;
  }
  CGContextSaveGState(context_);
  CGContextSetLineWidth(context_, lineWidth);
  CGContextAddPath(context_, pathFrom(shape).get());
  CGContextReplacePathWithStrokedPath(context_);
  paintPath(context_, paint);
  CGContextRestoreGState(context_);
}

void QuartzCanvas::shadow(const ui::Shape& shape, const ui::PaintShadow& shadow) {
  if (shape.rect.isEmpty()) {
    return;
  }
  const auto path = pathFrom(shape);
  CGContextSaveGState(context_);
  // Clip to everything outside the shape: an even-odd clip to the shape within a rectangle that
  // encloses everything.
  const CGRect everything =
      CGRectInset(CGRectUnion(CGContextGetClipBoundingBox(context_), rectFrom(shape.rect)), -1, -1);
  CGContextAddRect(context_, everything);
  CGContextAddPath(context_, path.get());
  CGContextEOClip(context_);
  // Draw the shape that casts the shadow outside of that rectangle: its rim would show through the
  // clip's antialiased edge.
  const double distance = std::ceil(CGRectGetMaxX(everything) - shape.rect.x) + 1;
  ui::PaintShadow cast = shadow;
  cast.offset.x -= distance;
  setShadow(cast);
  CGContextTranslateCTM(context_, distance, 0);
  CGContextSetFillColorWithColor(context_, CGColorGetConstantColor(kCGColorBlack));
  CGContextAddPath(context_, path.get());
  CGContextFillPath(context_);
  CGContextRestoreGState(context_);
}

void QuartzCanvas::setShadow(const ui::PaintShadow& shadow) {
  // Shadows ignore the transform, and their y axis points upwards.
  const CGAffineTransform now = CGContextGetCTM(context_);
  const double scaleX = now.a / initialTransform_.a * shadowUnitsPerPoint_;
  const double scaleY = now.d / initialTransform_.d * shadowUnitsPerPoint_;
  CGContextSetShadowWithColor(
      context_, CGSizeMake(shadow.offset.x * scaleX, -shadow.offset.y * scaleY),
      shadow.radius * std::min(std::abs(scaleX), std::abs(scaleY)), colorFrom(shadow.color).get());
}

void QuartzCanvas::beginLayer(const ui::Rect& bounds, double opacity,
                              const std::optional<ui::PaintShadow>& shadow) {
  const CGRect extent = rectFrom(shadow ? bounds.outset(shadow->reach()) : bounds);
  int layers = 0;
  CGContextSaveGState(context_);
  if (opacity < 1) {
    CGContextSetAlpha(context_, opacity);
    CGContextBeginTransparencyLayerWithRect(context_, extent, nullptr);
    ++layers;
  }
  // A separate layer, so that the shadow and what casts it fade as one.
  if (shadow) {
    setShadow(*shadow);
    CGContextBeginTransparencyLayerWithRect(context_, extent, nullptr);
    ++layers;
  }
  openLayers_.push_back(layers);
}

void QuartzCanvas::endLayer() {
  for (int layer = 0; layer < openLayers_.back(); ++layer) {
    CGContextEndTransparencyLayer(context_);
  }
  openLayers_.pop_back();
  CGContextRestoreGState(context_);
}

void QuartzCanvas::text(const std::string& line, const ui::Font& font, const ui::Rgba& color,
                        ui::Point baseline) {
  NSString* const text = foundationString(line);
  if (text == nil) {
    return;
  }
  CGContextSaveGState(context_);
  // Core Text expects y upwards; flipping only the text matrix would misplace diacritics.
  CGContextTranslateCTM(context_, baseline.x, baseline.y);
  CGContextScaleCTM(context_, 1, -1);
  CGContextSetTextMatrix(context_, CGAffineTransformIdentity);
  CGContextSetTextPosition(context_, 0, 0);
  CTLineDraw(textLine(text, font, color).get(), context_);
  CGContextRestoreGState(context_);
}

void QuartzCanvas::image(const std::string& name, const ui::Rect& destination) {
  drawImage(context_, resourceImage(name), rectFrom(destination));
}

void QuartzCanvas::symbol(const std::string& name, const ui::Font& font, const ui::Rgba& color,
                          const ui::Rect& rect) {
  NSImage* const image = symbolImage(name, font);
  if (image == nil) {
    return;
  }
  const ui::Point center = rect.center();
  const NSSize size = image.size;
  const CGRect place =
      CGRectMake(center.x - size.width / 2, center.y - size.height / 2, size.width, size.height);
  // The symbol's alpha masks the colour.
  const CGRect stencil = CGRectInset(place, -1, -1);
  CGContextSaveGState(context_);
  CGContextBeginTransparencyLayerWithRect(context_, stencil, nullptr);
  drawImage(context_, image, place);
  CGContextSetBlendMode(context_, kCGBlendModeSourceIn);
  CGContextSetFillColorWithColor(context_, colorFrom(color).get());
  CGContextFillRect(context_, stencil);
  CGContextEndTransparencyLayer(context_);
  CGContextRestoreGState(context_);
}

}  // namespace orvane::appkit
