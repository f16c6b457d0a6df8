// Status items on the desk stand in the menu bar of every display.
#include "Orvane/platform/appkit/StatusItem.hpp"

#include "desk/windows/Implementations.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::appkit {

StatusItem::StatusItem() : implementation_(std::make_unique<Implementation>()) {}
StatusItem::StatusItem(StatusItem&&) noexcept = default;
StatusItem& StatusItem::operator=(StatusItem&&) noexcept = default;
StatusItem::~StatusItem() = default;

void StatusItem::setSquareLength() {
  implementation_->hasSquareLength = true;
}

void StatusItem::setImagePosition(ImagePosition position) {
  implementation_->imagePosition = position;
}

void StatusItem::setImageScaling(ImageScaling scaling) {
  implementation_->imageScaling = scaling;
}

void StatusItem::setImage(const std::optional<Image>& image) {
  implementation_->image = image ? image->implementation() : nullptr;
  desk::WindowServer::current().updates.request();
}

void StatusItem::setMenu(const Menu& menu) {
  implementation_->menu = menu.implementation();
}

void StatusItem::setAutosaveName(std::string_view name) {
  implementation_->autosaveName = name;
}

}  // namespace orvane::appkit
