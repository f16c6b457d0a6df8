// Implements Core Graphics on cairo: colours, paths, the graphics state and the clip. Without ARC.
#include <cmath>
#include <limits>
#include <utility>

#include "tests/gnustep/shim/DrawingContext.hpp"
#include "tests/gnustep/shim/Painting.hpp"

using orvane::gnustep::Color;
using orvane::gnustep::contextOf;
using orvane::gnustep::DrawingState;
using orvane::gnustep::paint;

@implementation OrvaneShimColor
@end

@interface OrvaneShimPath : NSObject {
 @public
  std::vector<cairo_path_data_t> _data;
}
@end
@implementation OrvaneShimPath
@end

@interface OrvaneShimGradient : NSObject {
 @public
  std::vector<double> _components;
  std::vector<double> _locations;
}
@end
@implementation OrvaneShimGradient
@end

@implementation OrvaneShimContext

- (instancetype)initWithCairo:(cairo_t*)cairo
                         base:(cairo_matrix_t)base
                    transform:(CGAffineTransform)transform
                        width:(int)width
                       height:(int)height {
  self = [super init];
  _cairo = cairo;
  _base = base;
  _width = width;
  _height = height;
  cairo_surface_get_device_offset(cairo_get_target(cairo), &_offsetX, &_offsetY);
  _states.emplace_back().transform = transform;
  cairo_new_path(cairo);
  return self;
}

- (instancetype)initWithSurface:(cairo_surface_t*)surface {
  const int height = cairo_image_surface_get_height(surface);
  cairo_matrix_t upwards;
  cairo_matrix_init(&upwards, 1, 0, 0, -1, 0, height);
  return [self initWithCairo:cairo_create(surface)
                        base:upwards
                   transform:CGAffineTransformIdentity
                       width:cairo_image_surface_get_width(surface)
                      height:height];
}

- (void)dealloc {
  NSCAssert(_layers.empty() && _states.size() == 1,
            @"a context ends with an open layer or saved state");
  cairo_destroy(_cairo);
  [super dealloc];
}

- (void)useTransform {
  const cairo_matrix_t user = orvane::gnustep::matrixFrom(_states.back().transform);
  cairo_matrix_t all;
  cairo_matrix_multiply(&all, &user, &_base);
  cairo_set_matrix(_cairo, &all);
}

@end

namespace orvane::gnustep {

CGContextRef autoreleased(OrvaneShimContext* context) {
  return (CGContextRef)[[context retain] autorelease];
}

cairo_matrix_t matrixFrom(const CGAffineTransform& transform) {
  cairo_matrix_t matrix;
  cairo_matrix_init(&matrix, transform.a, transform.b, transform.c, transform.d, transform.tx,
                    transform.ty);
  return matrix;
}

}  // namespace orvane::gnustep

namespace {

DrawingState& stateOf(CGContextRef context) {
  return contextOf(context)->_states.back();
}

void append(CGMutablePathRef path, cairo_path_data_type_t type,
            std::initializer_list<CGPoint> points) {
  auto& data = ((OrvaneShimPath*)path)->_data;
  cairo_path_data_t header;
  header.header = {type, static_cast<int>(points.size()) + 1};
  data.push_back(header);
  for (const CGPoint& point : points) {
    cairo_path_data_t place;
    place.point = {point.x, point.y};
    data.push_back(place);
  }
}

bool isNull(const CGRect& rect) {
  return std::isinf(rect.origin.x);
}

}  // namespace

const CGRect CGRectZero = {};
const CGAffineTransform CGAffineTransformIdentity = {1, 0, 0, 1, 0, 0};
const CFStringRef kCGColorSpaceSRGB = CFSTR("kCGColorSpaceSRGB");
const CFStringRef kCGColorBlack = CFSTR("kCGColorBlack");

CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy) {
  const double width = rect.size.width - 2 * dx;
  const double height = rect.size.height - 2 * dy;
  constexpr double infinity = std::numeric_limits<double>::infinity();
  return width < 0 || height < 0
             ? CGRectMake(infinity, infinity, 0, 0)
             : CGRectMake(rect.origin.x + dx, rect.origin.y + dy, width, height);
}
CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy) {
  return {{rect.origin.x + dx, rect.origin.y + dy}, rect.size};
}
CGRect CGRectUnion(CGRect first, CGRect second) {
  if (isNull(first) || isNull(second)) {
    return isNull(first) ? second : first;
  }
  return NSUnionRect(first, second);
}
CGAffineTransform CGAffineTransformMake(CGFloat a, CGFloat b, CGFloat c, CGFloat d, CGFloat tx,
                                        CGFloat ty) {
  return {a, b, c, d, tx, ty};
}

CGColorRef CGColorCreateSRGB(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
  OrvaneShimColor* const color = [[OrvaneShimColor alloc] init];
  color->_color = {red, green, blue, alpha};
  return (CGColorRef)color;
}
CGColorRef CGColorGetConstantColor(CFStringRef) {
  static CGColorRef const black = CGColorCreateSRGB(0, 0, 0, 1);
  return black;
}
CGColorSpaceRef CGColorSpaceCreateWithName(CFStringRef) {
  return (CGColorSpaceRef)[[NSObject alloc] init];
}
CGGradientRef CGGradientCreateWithColorComponents(CGColorSpaceRef, const CGFloat* components,
                                                  const CGFloat* locations, std::size_t count) {
  OrvaneShimGradient* const gradient = [[OrvaneShimGradient alloc] init];
  gradient->_components.assign(components, components + 4 * count);
  gradient->_locations.assign(locations, locations + count);
  return (CGGradientRef)gradient;
}

CGMutablePathRef CGPathCreateMutable() {
  return (CGMutablePathRef)[[OrvaneShimPath alloc] init];
}
void CGPathMoveToPoint(CGMutablePathRef path, const CGAffineTransform*, CGFloat x, CGFloat y) {
  append(path, CAIRO_PATH_MOVE_TO, {{x, y}});
}
void CGPathAddLineToPoint(CGMutablePathRef path, const CGAffineTransform*, CGFloat x, CGFloat y) {
  append(path, CAIRO_PATH_LINE_TO, {{x, y}});
}
void CGPathAddCurveToPoint(CGMutablePathRef path, const CGAffineTransform*, CGFloat x1, CGFloat y1,
                           CGFloat x2, CGFloat y2, CGFloat x, CGFloat y) {
  append(path, CAIRO_PATH_CURVE_TO, {{x1, y1}, {x2, y2}, {x, y}});
}
void CGPathCloseSubpath(CGMutablePathRef path) {
  append(path, CAIRO_PATH_CLOSE_PATH, {});
}

CGAffineTransform CGContextGetCTM(CGContextRef context) {
  return stateOf(context).transform;
}
void CGContextSaveGState(CGContextRef context) {
  cairo_save(contextOf(context)->_cairo);
  contextOf(context)->_states.push_back(DrawingState(stateOf(context)));
}
void CGContextRestoreGState(CGContextRef context) {
  NSCAssert(contextOf(context)->_states.size() > 1, @"nothing was saved");
  cairo_restore(contextOf(context)->_cairo);
  contextOf(context)->_states.pop_back();
}
void CGContextConcatCTM(CGContextRef context, CGAffineTransform transform) {
  const cairo_matrix_t fresh = orvane::gnustep::matrixFrom(transform);
  const cairo_matrix_t old = orvane::gnustep::matrixFrom(stateOf(context).transform);
  cairo_matrix_t both;
  cairo_matrix_multiply(&both, &fresh, &old);
  stateOf(context).transform = {both.xx, both.yx, both.xy, both.yy, both.x0, both.y0};
}
void CGContextTranslateCTM(CGContextRef context, CGFloat x, CGFloat y) {
  CGContextConcatCTM(context, {1, 0, 0, 1, x, y});
}
void CGContextScaleCTM(CGContextRef context, CGFloat x, CGFloat y) {
  CGContextConcatCTM(context, {x, 0, 0, y, 0, 0});
}

void CGContextAddPath(CGContextRef context, CGPathRef path) {
  auto& data = ((OrvaneShimPath*)path)->_data;
  cairo_path_t whole{CAIRO_STATUS_SUCCESS, data.data(), static_cast<int>(data.size())};
  [contextOf(context) useTransform];
  cairo_append_path(contextOf(context)->_cairo, &whole);
}
void CGContextAddRect(CGContextRef context, CGRect rect) {
  [contextOf(context) useTransform];
  cairo_rectangle(contextOf(context)->_cairo, rect.origin.x, rect.origin.y, rect.size.width,
                  rect.size.height);
}
void CGContextReplacePathWithStrokedPath(CGContextRef context) {
  contextOf(context)->_pathIsStroked = YES;
}

void CGContextClip(CGContextRef context) {
  OrvaneShimContext* const to = contextOf(context);
  if (!std::exchange(to->_pathIsStroked, NO)) {
    cairo_clip(to->_cairo);
    return;
  }
  cairo_identity_matrix(to->_cairo);
  DrawingState& state = stateOf(context);
  state.strokeClip = {
      {cairo_copy_path(to->_cairo), cairo_path_destroy}, state.lineWidth, state.transform};
  cairo_new_path(to->_cairo);
}
void CGContextEOClip(CGContextRef context) {
  cairo_t* const cairo = contextOf(context)->_cairo;
  cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_EVEN_ODD);
  cairo_clip(cairo);
  cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_WINDING);
}
void CGContextClipToRect(CGContextRef context, CGRect rect) {
  cairo_new_path(contextOf(context)->_cairo);
  CGContextAddRect(context, rect);
  cairo_clip(contextOf(context)->_cairo);
}
CGRect CGContextGetClipBoundingBox(CGContextRef context) {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  [contextOf(context) useTransform];
  cairo_clip_extents(contextOf(context)->_cairo, &left, &top, &right, &bottom);
  return CGRectMake(left, top, right - left, bottom - top);
}

void CGContextSetFillColorWithColor(CGContextRef context, CGColorRef color) {
  stateOf(context).fill = ((OrvaneShimColor*)color)->_color;
}
void CGContextSetLineWidth(CGContextRef context, CGFloat width) {
  stateOf(context).lineWidth = width;
}
void CGContextSetShadowWithColor(CGContextRef context, CGSize offset, CGFloat blur,
                                 CGColorRef color) {
  stateOf(context).shadow = {offset, blur, ((OrvaneShimColor*)color)->_color};
}
void CGContextSetAlpha(CGContextRef context, CGFloat alpha) {
  stateOf(context).alpha = alpha;
}
void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode) {
  stateOf(context).blendMode = mode;
}
void CGContextSetTextMatrix(CGContextRef context, CGAffineTransform transform) {
  stateOf(context).textTransform = transform;
}
void CGContextSetTextPosition(CGContextRef context, CGFloat x, CGFloat y) {
  contextOf(context)->_textPosition = {x, y};
}

void CGContextFillPath(CGContextRef context) {
  OrvaneShimContext* const to = contextOf(context);
  const Color color = stateOf(context).fill;
  const bool isStroked = std::exchange(to->_pathIsStroked, NO);
  const double width = stateOf(context).lineWidth;
  [to useTransform];
  paint(to, [&](cairo_t* cairo) {
    cairo_set_source_rgba(cairo, color.red, color.green, color.blue, color.alpha);
    if (isStroked) {
      cairo_set_line_width(cairo, width);
      cairo_stroke_preserve(cairo);
    } else {
      cairo_fill_preserve(cairo);
    }
  });
  cairo_new_path(to->_cairo);
}
void CGContextFillRect(CGContextRef context, CGRect rect) {
  cairo_new_path(contextOf(context)->_cairo);
  CGContextAddRect(context, rect);
  CGContextFillPath(context);
}

void CGContextDrawLinearGradient(CGContextRef context, CGGradientRef reference, CGPoint start,
                                 CGPoint end, CGGradientDrawingOptions) {
  OrvaneShimContext* const to = contextOf(context);
  const OrvaneShimGradient* const gradient = (OrvaneShimGradient*)reference;
  const auto stroke = stateOf(context).strokeClip;
  [to useTransform];
  paint(to, [&](cairo_t* cairo) {
    cairo_pattern_t* const pattern = cairo_pattern_create_linear(start.x, start.y, end.x, end.y);
    for (std::size_t stop = 0; stop < gradient->_locations.size(); ++stop) {
      const double* const color = &gradient->_components[4 * stop];
      cairo_pattern_add_color_stop_rgba(pattern, gradient->_locations[stop], color[0], color[1],
                                        color[2], color[3]);
    }
    // The application always requests drawing beyond both ends.
    cairo_pattern_set_extend(pattern, CAIRO_EXTEND_PAD);
    cairo_set_source(cairo, pattern);
    cairo_pattern_destroy(pattern);
    if (!stroke) {
      cairo_paint(cairo);
      return;
    }
    const cairo_matrix_t user = orvane::gnustep::matrixFrom(stroke->transform);
    cairo_matrix_t all;
    cairo_matrix_multiply(&all, &user, &to->_base);
    cairo_identity_matrix(cairo);
    cairo_new_path(cairo);
    cairo_append_path(cairo, stroke->path.get());
    cairo_set_matrix(cairo, &all);
    cairo_set_line_width(cairo, stroke->width);
    cairo_stroke(cairo);
  });
}

void CGContextBeginTransparencyLayerWithRect(CGContextRef context, CGRect, CFDictionaryRef) {
  OrvaneShimContext* const to = contextOf(context);
  CGContextSaveGState(context);
  cairo_surface_t* const surface = orvane::gnustep::surfaceLike(to);
  to->_layers.push_back({to->_cairo, surface});
  to->_cairo = cairo_create(surface);
  stateOf(context).alpha = 1;
  stateOf(context).shadow.reset();
  stateOf(context).blendMode = kCGBlendModeNormal;
}
void CGContextEndTransparencyLayer(CGContextRef context) {
  OrvaneShimContext* const to = contextOf(context);
  NSCAssert(!to->_layers.empty(), @"no layer was begun");
  cairo_destroy(to->_cairo);
  const orvane::gnustep::Layer layer = to->_layers.back();
  to->_layers.pop_back();
  to->_cairo = layer.below;
  CGContextRestoreGState(context);
  cairo_new_path(to->_cairo);
  paint(to, [&](cairo_t* cairo) {
    cairo_save(cairo);
    cairo_identity_matrix(cairo);
    cairo_set_source_surface(cairo, layer.surface, 0, 0);
    cairo_paint(cairo);
    cairo_restore(cairo);
  });
  cairo_surface_destroy(layer.surface);
}
