// A Core Graphics drawing context on a cairo surface. In its base space y points upwards, as in a
// bitmap.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#import <AppKit/AppKit.h>
#include <cairo/cairo.h>

namespace orvane::gnustep {

struct Color {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;
};

struct Shadow {
  /// Both in the base space, regardless of the transform.
  CGSize offset{};
  double blur = 0;
  Color color;
};

/// A stroked path that became the clip; cairo cannot clip to a stroke.
struct StrokeClip {
  std::shared_ptr<cairo_path_t> path;
  double width = 0;
  CGAffineTransform transform{};
};

struct DrawingState {
  CGAffineTransform transform = CGAffineTransformIdentity;
  CGAffineTransform textTransform = CGAffineTransformIdentity;
  Color fill;
  double alpha = 1;
  double lineWidth = 1;
  CGBlendMode blendMode = kCGBlendModeNormal;
  std::optional<Shadow> shadow;
  std::optional<StrokeClip> strokeClip;
};

struct Layer {
  cairo_t* below = nullptr;
  cairo_surface_t* surface = nullptr;
};

}  // namespace orvane::gnustep

@interface OrvaneShimColor : NSObject {
 @public
  orvane::gnustep::Color _color;
}
@end

/// What a CGContextRef refers to.
@interface OrvaneShimContext : NSObject {
 @public
  cairo_t* _cairo;
  /// From the base space to cairo's device space.
  cairo_matrix_t _base;
  int _width;
  int _height;
  double _offsetX;
  double _offsetY;
  std::vector<orvane::gnustep::DrawingState> _states;
  std::vector<orvane::gnustep::Layer> _layers;
  CGPoint _textPosition;
  BOOL _pathIsStroked;
}
/// Takes ownership of `cairo`; the size is that of its target.
- (instancetype)initWithCairo:(cairo_t*)cairo
                         base:(cairo_matrix_t)base
                    transform:(CGAffineTransform)transform
                        width:(int)width
                       height:(int)height;
/// On an image surface with one pixel per point.
- (instancetype)initWithSurface:(cairo_surface_t*)surface;
/// Sets cairo's matrix to the user space.
- (void)useTransform;
@end

/// AppKit's wrapper of such a context.
@interface OrvaneShimGraphicsContext : NSGraphicsContext {
 @public
  OrvaneShimContext* _context;
  BOOL _isContextFlipped;
}
- (instancetype)initWithContext:(OrvaneShimContext*)context flipped:(BOOL)isFlipped;
@end

namespace orvane::gnustep {

/// The object behind a reference. Inline, because it is used with and without ARC: with ARC, the
/// caller may claim an autoreleased result of an out-of-line function.
inline OrvaneShimContext* contextOf(CGContextRef reference) {
  return (__bridge OrvaneShimContext*)reference;
}
/// The reference is valid until the autorelease pool is drained.
CGContextRef autoreleased(OrvaneShimContext* context);
/// The weight with which a system font was requested.
double weightOf(NSFont* font);

}  // namespace orvane::gnustep
