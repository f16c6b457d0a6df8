// Images for the window system's own controls with NSImage.
#include "Orvane/platform/appkit/Image.hpp"

#include <algorithm>
#include <utility>

#include "macos/appkit/ImageImplementation.hpp"
#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {
namespace {

NSFontWeight platformWeight(SymbolWeight weight) {
  switch (weight) {
    case SymbolWeight::regular:
      return NSFontWeightRegular;
  }
}

}  // namespace

Image::Image(std::shared_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}

std::optional<Image> Image::systemSymbol(std::string_view name,
                                         std::string_view accessibilityDescription,
                                         double pointSize, SymbolWeight weight) {
  NSString* const symbol = foundationString(name);
  NSImage* const image =
      symbol == nil
          ? nil
          : [NSImage imageWithSystemSymbolName:symbol
                      accessibilityDescription:foundationString(accessibilityDescription)];
  NSImage* const configured =
      [image imageWithSymbolConfiguration:[NSImageSymbolConfiguration
                                              configurationWithPointSize:pointSize
                                                                  weight:platformWeight(weight)]];
  return configured == nil ? std::nullopt
                           : std::optional(Image(std::make_shared<Implementation>(configured)));
}

void Image::setTemplate(bool isTemplate) {
  [implementation_->image setTemplate:isTemplate];
}

void Image::setSize(CGSize size) {
  // Setting a symbol's size would stretch it, and few symbols are square.
  NSImage* const symbol = implementation_->image;
  const NSSize own = symbol.size;
  const CGFloat scale = std::min({1.0, size.width / own.width, size.height / own.height});
  NSImage* const sized = [NSImage
       imageWithSize:size
             flipped:NO
      drawingHandler:^BOOL(NSRect rect) {
        const NSSize drawn = NSMakeSize(own.width * scale, own.height * scale);
        [symbol drawInRect:NSMakeRect(NSMidX(rect) - drawn.width / 2,
                                      NSMidY(rect) - drawn.height / 2, drawn.width, drawn.height)];
        return YES;
      }];
  [sized setTemplate:symbol.isTemplate];
  sized.accessibilityDescription = symbol.accessibilityDescription;
  implementation_->image = sized;
}

}  // namespace orvane::appkit
