// Images on the desk, which name symbols that the desk draws itself.
#include "Orvane/platform/appkit/Image.hpp"

#include <string>
#include <utility>

#include "desk/canvas/SymbolLibrary.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/windows/Implementations.hpp"

namespace orvane::appkit {

Image::Image(std::shared_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}

std::optional<Image> Image::systemSymbol(std::string_view name,
                                         std::string_view accessibilityDescription,
                                         double pointSize, SymbolWeight /*weight*/) {
  desk::recordCall("Image.systemSymbol", {name, accessibilityDescription, pointSize});
  if (!desk::SymbolLibrary::contains(std::string(name))) {
    return std::nullopt;
  }
  return Image(std::make_shared<Implementation>(
      desk::SymbolImage{std::string(name), std::string(accessibilityDescription), pointSize, false,
                        CGSizeMake(pointSize, pointSize)}));
}

void Image::setTemplate(bool isTemplate) {
  desk::recordCall("Image.setTemplate", {isTemplate});
  implementation_->isTemplate = isTemplate;
}

void Image::setSize(CGSize size) {
  desk::recordCall("Image.setSize", {size.width, size.height});
  implementation_->size = size;
}

}  // namespace orvane::appkit
