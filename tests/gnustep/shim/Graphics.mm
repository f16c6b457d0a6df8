// AppKit's drawing on Core Graphics: graphics contexts, images, symbols and the material behind a
// window.
#include <librsvg/rsvg.h>

#include <algorithm>
#include <array>
#include <map>

#include "tests/gnustep/shim/DrawingContext.hpp"
#include "tests/gnustep/shim/Methods.hpp"

using orvane::gnustep::contextOf;

/// The graphics state of GNUstep's cairo back end.
@interface NSObject (OrvaneShimCairoState)
- (NSSize)size;
@end

@implementation OrvaneShimGraphicsContext

- (instancetype)initWithContext:(OrvaneShimContext*)context flipped:(BOOL)isFlipped {
  self = [super initWithContextInfo:nil];
  _context = context;
  _isContextFlipped = isFlipped;
  return self;
}
- (CGContextRef)CGContext {
  return (__bridge CGContextRef)_context;
}
- (BOOL)isFlipped {
  return _isContextFlipped;
}
- (void)saveGraphicsState {
  CGContextSaveGState(self.CGContext);
}
- (void)restoreGraphicsState {
  CGContextRestoreGState(self.CGContext);
}

@end

/// An image that a handler draws on each use, in a context whose y points upwards.
@interface OrvaneShimDrawing : NSImageRep {
 @public
  BOOL (^_handler)(NSRect rect);
  BOOL _isHandlerFlipped;
}
@end

@implementation OrvaneShimDrawing

- (id)copyWithZone:(NSZone*)zone {
  return self;
}

- (BOOL)draw {
  NSGraphicsContext* const before = NSGraphicsContext.currentContext;
  CGContextRef const context = before.CGContext;
  CGContextSaveGState(context);
  if (_isHandlerFlipped) {
    CGContextTranslateCTM(context, 0, self.size.height);
    CGContextScaleCTM(context, 1, -1);
  }
  NSGraphicsContext.currentContext =
      [NSGraphicsContext graphicsContextWithCGContext:context flipped:_isHandlerFlipped];
  const BOOL isDrawn = _handler(NSMakeRect(0, 0, self.size.width, self.size.height));
  NSGraphicsContext.currentContext = before;
  CGContextRestoreGState(context);
  return isDrawn;
}

@end

@interface OrvaneShimSymbol : NSImage {
 @public
  NSString* _symbol;
}
@end
@implementation OrvaneShimSymbol
@end

@implementation NSImageSymbolConfiguration {
 @public
  NSNumber* _size;
  NSNumber* _weight;
}
+ (instancetype)configurationWithPointSize:(CGFloat)size weight:(CGFloat)weight {
  NSImageSymbolConfiguration* const made = [[self alloc] init];
  made->_size = @(size);
  made->_weight = @(weight);
  return made;
}
+ (instancetype)configurationPreferringMonochrome {
  return [[self alloc] init];
}
- (instancetype)configurationByApplyingConfiguration:(NSImageSymbolConfiguration*)other {
  NSImageSymbolConfiguration* const made = [[NSImageSymbolConfiguration alloc] init];
  made->_size = other->_size == nil ? _size : other->_size;
  made->_weight = other->_weight == nil ? _weight : other->_weight;
  return made;
}
@end

namespace {

OrvaneShimContext* currentContext() {
  return contextOf(NSGraphicsContext.currentContext.CGContext);
}

/// The desk's drawing of the symbol; nil if there is none. As on the desk, a symbol at 24 points
/// has the size of its drawing, of whose height of 32 units the middle 28 count.
OrvaneShimSymbol* symbolNamed(NSString* name, double pointSize, double weight) {
  NSString* const file = [NSString stringWithFormat:@"%s/%@.svg", ORVANE_SYMBOLS, name];
  RsvgHandle* const drawing = rsvg_handle_new_from_file(file.UTF8String, nullptr);
  if (drawing == nullptr) {
    return nil;
  }
  double width = 0;
  double height = 0;
  rsvg_handle_get_intrinsic_size_in_pixels(drawing, &width, &height);
  NSData* const style =
      [[NSString stringWithFormat:@"svg{stroke-width:%g}", 2 + 4 * std::max(0.0, weight)]
          dataUsingEncoding:NSUTF8StringEncoding];
  rsvg_handle_set_stylesheet(drawing, static_cast<const guint8*>(style.bytes), style.length,
                             nullptr);
  const double scale = pointSize / 24;
  OrvaneShimSymbol* const symbol =
      [[OrvaneShimSymbol alloc] initWithSize:NSMakeSize(width * scale, 28 * scale)];
  symbol->_symbol = name;
  OrvaneShimDrawing* const picture = [[OrvaneShimDrawing alloc] init];
  picture.size = symbol.size;
  picture->_handler = ^BOOL(NSRect rect) {
    OrvaneShimContext* const context = currentContext();
    cairo_t* const cairo = context->_cairo;
    [context useTransform];
    cairo_save(cairo);
    cairo_translate(cairo, 0, rect.size.height);
    cairo_scale(cairo, rect.size.width / width, -rect.size.height / 28);
    const RsvgRectangle viewport{0, (28 - height) / 2, width, height};
    rsvg_handle_render_document(drawing, cairo, &viewport, nullptr);
    cairo_restore(cairo);
    return YES;
  };
  [symbol addRepresentation:picture];
  [symbol setTemplate:YES];
  return symbol;
}

/// The contents of a bundle's image file; never released.
cairo_surface_t* surfaceOf(NSString* name) {
  static auto* const known = new std::map<std::string, cairo_surface_t*>;
  cairo_surface_t*& surface = (*known)[name.UTF8String];
  if (surface == nullptr) {
    NSString* const file = [NSBundle.mainBundle pathForResource:name ofType:@"png"];
    surface = cairo_image_surface_create_from_png(file.UTF8String);
  }
  return surface;
}

/// Draws the image upright in flipped and unflipped contexts.
void drawImage(NSImage* image, NSRect rect, OrvaneShimGraphicsContext* current) {
  OrvaneShimContext* const context = current->_context;
  const bool isFlipped = current.isFlipped;
  CGContextSaveGState(current.CGContext);
  CGContextTranslateCTM(current.CGContext, NSMinX(rect), isFlipped ? NSMaxY(rect) : NSMinY(rect));
  CGContextScaleCTM(current.CGContext, rect.size.width / image.size.width,
                    rect.size.height / image.size.height * (isFlipped ? -1 : 1));
  NSImageRep* const picture = image.representations.firstObject;
  if ([picture isKindOfClass:OrvaneShimDrawing.class]) {
    [picture draw];
  } else {
    cairo_surface_t* const surface = surfaceOf(image.name);
    const double scale = image.size.height / cairo_image_surface_get_height(surface);
    [context useTransform];
    cairo_save(context->_cairo);
    cairo_translate(context->_cairo, 0, image.size.height);
    cairo_scale(context->_cairo, scale, -scale);
    cairo_set_source_surface(context->_cairo, surface, 0, 0);
    cairo_pattern_set_filter(cairo_get_source(context->_cairo), CAIRO_FILTER_BEST);
    cairo_paint_with_alpha(context->_cairo, context->_states.back().alpha);
    cairo_restore(context->_cairo);
  }
  CGContextRestoreGState(current.CGContext);
}

/// The context of a view that GNUstep draws: on the view's surface, with its transform and clip.
CGContextRef contextFrom(NSGraphicsContext* context) {
  const id state =
      object_getIvar(context, class_getInstanceVariable(object_getClass(context), "gstate"));
  const auto part = [state](const char* name) {
    return class_getInstanceVariable(object_getClass(state), name);
  };
  const auto* const bytes = static_cast<const char*>((__bridge const void*)state);
  cairo_t* theirs = nullptr;
  std::copy_n(bytes + ivar_getOffset(part("_ct")), sizeof(theirs),
              reinterpret_cast<char*>(&theirs));
  const NSSize size = [object_getIvar(state, part("_surface")) size];
  const NSAffineTransformStruct transform = [object_getIvar(state, part("ctm")) transformStruct];
  cairo_t* const cairo = cairo_create(cairo_get_target(theirs));
  cairo_matrix_t base;
  cairo_get_matrix(theirs, &base);
  cairo_set_matrix(cairo, &base);
  cairo_rectangle_list_t* const clip = cairo_copy_clip_rectangle_list(theirs);
  if (clip->status == CAIRO_STATUS_SUCCESS) {
    for (int index = 0; index < clip->num_rectangles; ++index) {
      const cairo_rectangle_t& area = clip->rectangles[index];
      cairo_rectangle(cairo, area.x, area.y, area.width, area.height);
    }
    cairo_clip(cairo);
  }
  cairo_rectangle_list_destroy(clip);
  OrvaneShimContext* const made =
      [[OrvaneShimContext alloc] initWithCairo:cairo
                                          base:base
                                     transform:{transform.m11, transform.m12, transform.m21,
                                                transform.m22, transform.tX, transform.tY}
                                         width:static_cast<int>(size.width)
                                        height:static_cast<int>(size.height)];
  return orvane::gnustep::autoreleased(made);
}

/// The mask of the material: the mask image with its middle stretched to the size of the view.
cairo_surface_t* stretched(NSImage* mask, NSSize size) {
  const NSSize own = mask.size;
  cairo_surface_t* const small = cairo_image_surface_create(
      CAIRO_FORMAT_ARGB32, static_cast<int>(own.width), static_cast<int>(own.height));
  @autoreleasepool {
    NSGraphicsContext* const before = NSGraphicsContext.currentContext;
    OrvaneShimGraphicsContext* const current = [[OrvaneShimGraphicsContext alloc]
        initWithContext:[[OrvaneShimContext alloc] initWithSurface:small]
                flipped:NO];
    NSGraphicsContext.currentContext = current;
    drawImage(mask, NSMakeRect(0, 0, own.width, own.height), current);
    NSGraphicsContext.currentContext = before;
  }
  cairo_surface_t* const large = cairo_image_surface_create(
      CAIRO_FORMAT_ARGB32, static_cast<int>(size.width), static_cast<int>(size.height));
  cairo_t* const cairo = cairo_create(large);
  const NSEdgeInsets caps = mask.capInsets;
  const std::array<double, 4> fromX{0, caps.left, own.width - caps.right, own.width};
  const std::array<double, 4> fromY{0, caps.top, own.height - caps.bottom, own.height};
  const std::array<double, 4> toX{0, caps.left, size.width - caps.right, size.width};
  const std::array<double, 4> toY{0, caps.top, size.height - caps.bottom, size.height};
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      const double width = toX[column + 1] - toX[column];
      const double height = toY[row + 1] - toY[row];
      cairo_save(cairo);
      cairo_rectangle(cairo, toX[column], toY[row], width, height);
      cairo_clip(cairo);
      cairo_translate(cairo, toX[column], toY[row]);
      cairo_scale(cairo, width / (fromX[column + 1] - fromX[column]),
                  height / (fromY[row + 1] - fromY[row]));
      cairo_set_source_surface(cairo, small, -fromX[column], -fromY[row]);
      cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_NEAREST);
      cairo_paint(cairo);
      cairo_restore(cairo);
    }
  }
  cairo_destroy(cairo);
  cairo_surface_destroy(small);
  return large;
}

/// Draws a plain colour instead of a blurred background.
void drawMaterial(NSVisualEffectView* view) {
  OrvaneShimContext* const context = currentContext();
  cairo_t* const cairo = context->_cairo;
  const bool isDark = [view.effectiveAppearance.name isEqual:NSAppearanceNameDarkAqua];
  const double gray = isDark ? 0.16 : 0.9;
  [context useTransform];
  cairo_save(cairo);
  cairo_set_source_rgba(cairo, gray, gray, gray, 0.95);
  if (view.maskImage == nil) {
    cairo_paint(cairo);
  } else {
    cairo_surface_t* const mask = stretched(view.maskImage, view.bounds.size);
    cairo_translate(cairo, 0, view.bounds.size.height);
    cairo_scale(cairo, 1, -1);
    cairo_mask_surface(cairo, mask, 0, 0);
    cairo_surface_destroy(mask);
  }
  cairo_restore(cairo);
}

const char capsKey = 0;

}  // namespace

@implementation NSImage (OrvaneShim)

+ (NSImage*)imageWithSystemSymbolName:(NSString*)name
             accessibilityDescription:(NSString*)description {
  NSImage* const symbol = symbolNamed(name, 13, 0);
  symbol.accessibilityDescription = description;
  return symbol;
}

- (NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration {
  NSImage* const symbol =
      symbolNamed(static_cast<OrvaneShimSymbol*>(self)->_symbol, configuration->_size.doubleValue,
                  configuration->_weight.doubleValue);
  symbol.accessibilityDescription = self.accessibilityDescription;
  return symbol;
}

+ (NSImage*)imageWithSize:(NSSize)size
                  flipped:(BOOL)flipped
           drawingHandler:(BOOL (^)(NSRect rect))handler {
  NSImage* const image = [[NSImage alloc] initWithSize:size];
  OrvaneShimDrawing* const picture = [[OrvaneShimDrawing alloc] init];
  picture.size = size;
  picture->_handler = [handler copy];
  picture->_isHandlerFlipped = flipped;
  [image addRepresentation:picture];
  return image;
}

- (NSEdgeInsets)capInsets {
  NSEdgeInsets insets{};
  [objc_getAssociatedObject(self, &capsKey) getValue:&insets];
  return insets;
}

- (void)setCapInsets:(NSEdgeInsets)insets {
  objc_setAssociatedObject(self, &capsKey,
                           [NSValue valueWithBytes:&insets objCType:@encode(NSEdgeInsets)],
                           OBJC_ASSOCIATION_RETAIN);
}

ORVANE_STORED_OBJECT(NSString*, accessibilityDescription, setAccessibilityDescription,
                     OBJC_ASSOCIATION_COPY)
ORVANE_STORED_NUMBER(NSImageResizingMode, resizingMode, setResizingMode, integerValue)

@end

namespace orvane::gnustep {

void installGraphics() {
  // AppKit retains the current context; GNUstep does not.
  static IMP const setCurrent = replaceClassMethod(
      NSGraphicsContext.class, @selector(setCurrentContext:),
      ^(Class type, NSGraphicsContext* context) {
        static NSGraphicsContext* current = nil;
        NSGraphicsContext* const before = current;
        current = context;
        callReplaced<void, id>(setCurrent, type, @selector(setCurrentContext:), context);
        (void)before;
      });
  replaceMethod(NSGraphicsContext.class, @selector(CGContext),
                ^CGContextRef(NSGraphicsContext* context) {
                  return contextFrom(context);
                });
  replaceClassMethod(NSGraphicsContext.class, @selector(graphicsContextWithCGContext:flipped:),
                     ^NSGraphicsContext*(Class, CGContextRef context, BOOL isFlipped) {
                       return [[OrvaneShimGraphicsContext alloc] initWithContext:contextOf(context)
                                                                         flipped:isFlipped];
                     });
  static IMP const draw =
      replaceMethod(NSImage.class, @selector(drawInRect:), ^(NSImage* image, NSRect rect) {
        NSGraphicsContext* const current = NSGraphicsContext.currentContext;
        if ([current isKindOfClass:OrvaneShimGraphicsContext.class]) {
          drawImage(image, rect, static_cast<OrvaneShimGraphicsContext*>(current));
        } else {
          callReplaced<void, NSRect>(draw, image, @selector(drawInRect:), rect);
        }
      });
  replaceMethod(NSVisualEffectView.class, @selector(drawRect:),
                ^(NSVisualEffectView* view, NSRect) {
                  drawMaterial(view);
                });
}

}  // namespace orvane::gnustep
