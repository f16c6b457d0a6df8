// Status items on the desk, shown in the menu bar of every display.
#include "Orvane/platform/appkit/StatusItem.hpp"

#include <utility>

#include "desk/windows/Implementations.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::appkit {

namespace {

bool looksTheSame(const desk::SymbolImage* first, const desk::SymbolImage* second) {
  if (first == nullptr || second == nullptr) {
    return first == second;
  }
  return first->name == second->name && first->pointSize == second->pointSize &&
         first->isTemplate == second->isTemplate && first->size.width == second->size.width &&
         first->size.height == second->size.height;
}

}  // namespace

StatusItem::StatusItem() : implementation_(std::make_unique<Implementation>()) {
  desk::recordCall("StatusItem");
}
StatusItem::StatusItem(StatusItem&&) noexcept = default;
StatusItem& StatusItem::operator=(StatusItem&&) noexcept = default;
StatusItem::~StatusItem() = default;

void StatusItem::setSquareLength() {
  desk::recordCall("StatusItem.setSquareLength");
  implementation_->hasSquareLength = true;
}

void StatusItem::setImagePosition(ImagePosition position) {
  desk::recordCall("StatusItem.setImagePosition", {static_cast<std::int64_t>(position)});
  implementation_->imagePosition = position;
}

void StatusItem::setImageScaling(ImageScaling scaling) {
  desk::recordCall("StatusItem.setImageScaling", {static_cast<std::int64_t>(scaling)});
  implementation_->imageScaling = scaling;
}

void StatusItem::setImage(const std::optional<Image>& image) {
  desk::recordCall("StatusItem.setImage", {image.has_value()});
  const auto before =
      std::exchange(implementation_->image, image ? image->implementation() : nullptr);
  // The same image does not need redrawing.
  if (!looksTheSame(before.get(), implementation_->image.get())) {
    desk::WindowServer::current().updates.request();
  }
}

void StatusItem::setAccessibilityValue(std::string_view value) {
  desk::recordCall("StatusItem.setAccessibilityValue", {value});
  implementation_->accessibilityValue = value;
}

void StatusItem::setMenu(const Menu& menu) {
  desk::recordCall("StatusItem.setMenu");
  implementation_->menu = menu.implementation();
}

void StatusItem::setAutosaveName(std::string_view name) {
  desk::recordCall("StatusItem.setAutosaveName", {name});
  implementation_->autosaveName = name;
}

}  // namespace orvane::appkit
