// Pictures for the window system's own controls by NSImage.
#include "Orvane/platform/appkit/Image.hpp"

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
  implementation_->image.size = size;
}

}  // namespace orvane::appkit
