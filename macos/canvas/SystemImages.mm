// The system's symbols and the bundle's images, by name.
#include "macos/canvas/SystemImages.hpp"

#include "macos/appkit/Strings.hpp"
#include "macos/canvas/SystemFont.hpp"

namespace orvane::appkit {
namespace {

std::optional<ui::Size> sizeOf(NSImage* image) {
  return image == nil ? std::nullopt : std::optional(ui::Size{image.size.width, image.size.height});
}

}  // namespace

NSImage* symbolImage(const std::string& name, const ui::Font& font) {
  NSString* const symbol = foundationString(name);
  NSImage* const image =
      symbol == nil ? nil : [NSImage imageWithSystemSymbolName:symbol accessibilityDescription:nil];
  NSImageSymbolConfiguration* const size =
      [NSImageSymbolConfiguration configurationWithPointSize:font.size
                                                      weight:fontWeight(font.weight)];
  return [image imageWithSymbolConfiguration:[size configurationByApplyingConfiguration:
                                                       NSImageSymbolConfiguration
                                                           .configurationPreferringMonochrome]];
}

NSImage* resourceImage(const std::string& name) {
  NSString* const resource = foundationString(name);
  return resource == nil ? nil : [NSImage imageNamed:resource];
}

ui::ImageSource systemImageSource() {
  return {[](const std::string& name) { return sizeOf(resourceImage(name)); },
          [](const std::string& name, const ui::Font& font) {
            return sizeOf(symbolImage(name, font));
          }};
}

}  // namespace orvane::appkit
