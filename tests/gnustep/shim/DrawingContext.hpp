// A drawing context of Core Graphics on a cairo surface. Its base space has y upwards, as a
// bitmap's.
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
  /// Both in the base space, whatever the transform.
  CGSize offset{};
  double blur = 0;
  Color color;
};

/// A path that was stroked before it became the clip; cairo cannot clip to a stroke.
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
  /// From the base space to cairo's.
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
/// Takes over `cairo`; the size is that of its target.
- (instancetype)initWithCairo:(cairo_t*)cairo
                         base:(cairo_matrix_t)base
                    transform:(CGAffineTransform)transform
                        width:(int)width
                       height:(int)height;
/// On an image surface of as many points as it has pixels.
- (instancetype)initWithSurface:(cairo_surface_t*)surface;
/// Gives cairo the transform of the user space.
- (void)useTransform;
@end

/// AppKit's side of such a context.
@interface OrvaneShimGraphicsContext : NSGraphicsContext {
 @public
  OrvaneShimContext* _context;
  BOOL _isContextFlipped;
}
- (instancetype)initWithContext:(OrvaneShimContext*)context flipped:(BOOL)isFlipped;
@end

namespace orvane::gnustep {

/// What a reference refers to. Inline, because each side counts as it is compiled: a file with ARC
/// takes what another function returns for its own when it was the last to be autoreleased.
inline OrvaneShimContext* contextOf(CGContextRef reference) {
  return (__bridge OrvaneShimContext*)reference;
}
/// The reference lives as long as the autorelease pool.
CGContextRef autoreleased(OrvaneShimContext* context);
/// The weight that the system's font was asked for.
double weightOf(NSFont* font);

}  // namespace orvane::gnustep
