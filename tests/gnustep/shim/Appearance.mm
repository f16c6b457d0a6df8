// Light and dark appearances, the system's colours and the system's font.
#include <cmath>
#include <cstdint>

#include "tests/gnustep/shim/DrawingContext.hpp"
#include "tests/gnustep/shim/Methods.hpp"

namespace {

__strong NSAppearance* drawingAppearance = nil;

NSAppearance* applicationAppearance() {
  NSAppearance* const own = NSApp.appearance;
  return own == nil ? [NSAppearance appearanceNamed:NSAppearanceNameAqua] : own;
}

void announceAppearance(NSView* view) {
  [view viewDidChangeEffectiveAppearance];
  for (NSView* subview in view.subviews) {
    announceAppearance(subview);
  }
}

const char weightKey = 0;

}  // namespace

@implementation NSAppearance (OrvaneShim)

- (id)copyWithZone:(NSZone*)zone {
  return self;
}

+ (NSAppearance*)currentDrawingAppearance {
  return drawingAppearance == nil ? applicationAppearance() : drawingAppearance;
}

- (void)performAsCurrentDrawingAppearance:(void (^)(void))block {
  NSAppearance* const before = drawingAppearance;
  drawingAppearance = self;
  block();
  drawingAppearance = before;
}

@end

@implementation NSColorSpace (OrvaneShim)
+ (NSColorSpace*)sRGBColorSpace {
  return NSColorSpace.deviceRGBColorSpace;
}
@end

@implementation NSFont (OrvaneShim)

// The weight is attached to the font object. GNUstep shares font objects by size, so each weight
// gets a slightly different size.
+ (NSFont*)systemFontOfSize:(CGFloat)size weight:(CGFloat)weight {
  const double own = size + 1e-4 * static_cast<double>(std::lround((weight + 1) * 100));
  NSFont* const font = [NSFont fontWithName:@"Inter-Regular" size:own];
  NSAssert(font != nil, @"Inter is not installed");
  objc_setAssociatedObject(font, &weightKey, @(weight), OBJC_ASSOCIATION_RETAIN);
  return font;
}

@end

namespace orvane::gnustep {

double weightOf(NSFont* font) {
  return [objc_getAssociatedObject(font, &weightKey) doubleValue];
}

namespace {

/// Installs the documented values of the system's colours, resolved by the current drawing
/// appearance.
void installColors() {
  struct Shades {
    SEL name;
    std::uint32_t light;
    std::uint32_t dark;
  };
  // Red, green, blue and alpha, a byte each.
  for (const Shades& color : std::initializer_list<Shades>{
           {@selector(controlAccentColor), 0x007AFFFF, 0x0A84FFFF},
           {@selector(labelColor), 0x000000D9, 0xFFFFFFD9},
           {@selector(secondaryLabelColor), 0x00000080, 0xFFFFFF8C},
           {@selector(tertiaryLabelColor), 0x00000042, 0xFFFFFF40},
           {@selector(windowBackgroundColor), 0xECECECFF, 0x1E1E1EFF},
           {@selector(systemRedColor), 0xFF3B30FF, 0xFF453AFF},
           {@selector(systemGreenColor), 0x34C759FF, 0x30D158FF},
           {@selector(systemOrangeColor), 0xFF9500FF, 0xFF9F0AFF},
           {@selector(systemBlueColor), 0x007AFFFF, 0x0A84FFFF},
           {@selector(systemGrayColor), 0x8E8E93FF, 0x98989DFF},
       }) {
    const std::uint32_t light = color.light;
    const std::uint32_t dark = color.dark;
    id const block = ^NSColor*(Class) {
      NSString* const appearance = NSAppearance.currentDrawingAppearance.name;
      const std::uint32_t shade = [appearance isEqual:NSAppearanceNameDarkAqua] ? dark : light;
      const auto part = [shade](int shift) { return (shade >> shift & 0xFF) / 255.0; };
      return [NSColor colorWithDeviceRed:part(24) green:part(16) blue:part(8) alpha:part(0)];
    };
    // GNUstep defines some of them.
    class_replaceMethod(object_getClass(NSColor.class), color.name,
                        imp_implementationWithBlock(block), "@@:");
  }
}

/// Installs one of Inter's metrics, which GNUstep rounds.
void installFontMetric(SEL name, double share) {
  IMP* const replaced = new IMP;
  *replaced = replaceMethod(NSFont.class, name, ^CGFloat(NSFont* font) {
    return objc_getAssociatedObject(font, &weightKey) != nil
               ? share * font.pointSize
               : callReplaced<CGFloat>(*replaced, font, name);
  });
}

}  // namespace

void installAppearance() {
  installColors();
  installFontMetric(@selector(ascender), 0.96875);
  installFontMetric(@selector(descender), -0.2412);
  installFontMetric(@selector(leading), 0);
  replaceMethod(NSView.class, @selector(effectiveAppearance), ^NSAppearance*(NSView* view) {
    for (NSView* each = view; each != nil; each = each.superview) {
      if (each.appearance != nil) {
        return each.appearance;
      }
    }
    return applicationAppearance();
  });
  static IMP const setAppearance = replaceMethod(
      NSApplication.class, @selector(setAppearance:),
      ^(NSApplication* application, NSAppearance* appearance) {
        callReplaced<void, id>(setAppearance, application, @selector(setAppearance:), appearance);
        for (NSWindow* window in application.windows) {
          announceAppearance(window.contentView);
        }
      });
}

}  // namespace orvane::gnustep
