// The contract fixture on a real Mac: apart from running the main run loop, it provides hardly any
// precondition, as it must not disturb the user.
#include "tests/contract/ContractFixture.hpp"
#include "tests/contract/macos/ApplicationRun.hpp"

#include <cstdlib>

#include "Orvane/base/CFRef.hpp"

namespace orvane {

struct ContractFixture::Platform {
  ApplicationRun run;
};

ContractFixture::ContractFixture() : platform_(std::make_unique<Platform>()) {}
ContractFixture::~ContractFixture() = default;

void ContractFixture::letTimePass(double seconds) {
  platform_->run.serve(seconds, NSDefaultRunLoopMode);
}

bool ContractFixture::letTimePassWithMenuOpen(double seconds) {
  platform_->run.serve(seconds, NSEventTrackingRunLoopMode);
  return true;
}

bool ContractFixture::arrangeTwoDisplays() {
  return false;
}

bool ContractFixture::changeDisplays() {
  return false;
}

bool ContractFixture::setTrusted(bool isTrusted) {
  return (AXIsProcessTrusted() != 0) == isTrusted;
}

bool ContractFixture::movePointer(CGPoint goal) {
  // Posted movements take control of the user's pointer.
  if (std::getenv("ORVANE_POST_MOVEMENTS") == nullptr) {
    return false;
  }
  const auto event = CFRef<CGEventRef>::owning(
      CGEventCreateMouseEvent(nullptr, kCGEventMouseMoved, goal, kCGMouseButtonLeft));
  CGEventPost(kCGHIDEventTap, event.get());
  letTimePass(0.1);
  return true;
}

bool ContractFixture::holdModifiers(std::uint64_t) {
  return false;
}

bool ContractFixture::disableTaps(CGEventType) {
  return false;
}

bool ContractFixture::storePreference(const std::string&, const std::string&, const std::string&) {
  return false;
}

bool ContractFixture::storePreference(const std::string&, const std::string&, double) {
  return false;
}

bool ContractFixture::setLocale(const std::vector<std::string>&, const std::string&) {
  return false;
}

bool ContractFixture::failLoginItem(const std::string&) {
  return false;
}

bool ContractFixture::canOpenLinks() const {
  return false;
}

bool ContractFixture::refuseLinks(const std::string&) {
  return false;
}

bool ContractFixture::storeNumberInUserDefaults(const std::string&, double) {
  return false;
}

bool ContractFixture::makeVolumeReadOnly() {
  return false;
}

bool ContractFixture::canRegisterLoginItem() const {
  return false;
}

bool ContractFixture::dragPointer(CGPoint, CGPoint) {
  return false;
}

void ContractFixture::releasePointer() {}

std::optional<ContractFixture::DraggedFile> ContractFixture::draggedFile() const {
  return std::nullopt;
}

}  // namespace orvane
