// The contract fixture on the simulated Mac, which provides every precondition.
#include "tests/contract/ContractFixture.hpp"

#include "desk/hand/Hand.hpp"
#include "desk/machine/MachineScope.hpp"
#include "desk/windows/Implementations.hpp"
#include "desk/windows/WindowServer.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {

struct ContractFixture::Platform {
  desk::MachineScope scope;
};

ContractFixture::ContractFixture() : platform_(std::make_unique<Platform>()) {
  platform_->scope->process.start();
}

ContractFixture::~ContractFixture() {
  for (const std::string& problem : platform_->scope.end()) {
    ADD_FAILURE() << problem;
  }
}

void ContractFixture::letTimePass(double seconds) {
  platform_->scope->advance(seconds);
}

bool ContractFixture::letTimePassWithMenuOpen(double seconds) {
  desk::RunLoop& runLoop = platform_->scope->runLoop;
  runLoop.enterMode(desk::RunLoop::Mode::eventTracking);
  platform_->scope->advance(seconds);
  runLoop.leaveMode();
  return true;
}

bool ContractFixture::arrangeTwoDisplays() {
  desk::Display left = desk::displayOf(1, "Left", CGRectMake(0, 0, 1000, 800));
  left.uuid = leftUUID;
  left.isBuiltIn = true;
  desk::attach(platform_->scope.machine(), left, true);
  desk::attach(platform_->scope.machine(),
               desk::displayOf(2, "Right", CGRectMake(1000, 0, 1000, 800)));
  return true;
}

bool ContractFixture::changeDisplays() {
  desk::Displays& displays = platform_->scope->displays;
  return displays.find(99) == nullptr
             ? !displays.attach(desk::displayOf(99, "", CGRectMake(-500, 0, 500, 500)))
             : !displays.detach(99);
}

bool ContractFixture::setTrusted(bool isTrusted) {
  platform_->scope->permission.setTrusted(isTrusted);
  return true;
}

bool ContractFixture::movePointer(CGPoint goal) {
  platform_->scope->mouse.moveTo(goal);
  return true;
}

bool ContractFixture::holdModifiers(std::uint64_t flags) {
  platform_->scope->modifierKeys.hold(flags);
  return true;
}

bool ContractFixture::disableTaps(CGEventType reason) {
  desk::Machine& machine = platform_->scope.machine();
  machine.eventTaps.disableAll(reason, machine.pointer.location());
  return true;
}

bool ContractFixture::storePreference(const std::string& application, const std::string& key,
                                      const std::string& text) {
  platform_->scope->preferences.set({application}, key, text);
  return true;
}

bool ContractFixture::storePreference(const std::string& application, const std::string& key,
                                      double number) {
  platform_->scope->preferences.set({application}, key, number);
  return true;
}

bool ContractFixture::setLocale(const std::vector<std::string>& preferred,
                                const std::string& current) {
  platform_->scope->locale = {preferred, current};
  return true;
}

bool ContractFixture::failLoginItem(const std::string& text) {
  platform_->scope->loginItem.error = text;
  return true;
}

bool ContractFixture::canOpenLinks() const {
  return true;
}

bool ContractFixture::refuseLinks(const std::string& prefix) {
  platform_->scope->links.refuse(prefix);
  return true;
}

bool ContractFixture::storeNumberInUserDefaults(const std::string& key, double number) {
  platform_->scope->userDefaults.set(key, number);
  return true;
}

bool ContractFixture::makeVolumeReadOnly() {
  platform_->scope->bundle.isOnReadOnlyVolume = true;
  return true;
}

bool ContractFixture::canRegisterLoginItem() const {
  return true;
}

ContractFixture::WindowAttributes ContractFixture::attributesOf(const appkit::Window& window) {
  const desk::DeskWindow& native = *window.implementation();
  return {.level = native.level,
          .collectionBehavior = native.collectionBehavior,
          .isFloatingPanel = native.isFloatingPanel,
          .hidesOnDeactivate = native.hidesOnDeactivate,
          .becomesKeyOnlyIfNeeded = native.becomesKeyOnlyIfNeeded,
          .canBecomeKey = native.canBecomeKey(),
          .canBecomeMain = native.canBecomeMain(),
          .isOpaque = native.isOpaque,
          .hasShadow = native.hasShadow,
          .isMovableByBackground = native.isMovableByBackground,
          .hasTransparentTitlebar = native.hasTransparentTitlebar,
          .isTitleHidden = native.isTitleHidden,
          .minSize = native.minSize,
          .maxSize = native.maxSize,
          .title = native.title};
}

bool ContractFixture::dragPointer(CGPoint from, CGPoint to) {
  const desk::Hand hand(platform_->scope.machine());
  hand.moveTo(from);
  hand.pressButton();
  hand.moveTo(to);
  return true;
}

void ContractFixture::releasePointer() {
  desk::Hand(platform_->scope.machine()).releaseButton();
}

std::optional<ContractFixture::DraggedFile> ContractFixture::draggedFile() const {
  const auto& drag = desk::WindowServer::current().pointer.fileDrag();
  return drag ? std::optional(DraggedFile{drag->fileUrl, drag->operations}) : std::nullopt;
}

}  // namespace orvane
