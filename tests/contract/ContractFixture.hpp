// ContractFixture sets up, for a contract test, what the application's platform must be like. The
// tests themselves use the seam only; each platform has its own implementation of this.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/Window.hpp"

namespace orvane {

/// Operations that return a bool arrange something and return true, or return false where the
/// platform cannot be asked for it; the test then skips. The desk can be asked for everything, a
/// real Mac for hardly anything: what it is like is its user's business.
class ContractFixture : public testing::Test {
 public:
  ~ContractFixture() override;

 protected:
  ContractFixture();

  /// The main run loop serves what is due, and goes on for so long.
  void letTimePass(double seconds);
  /// The same while a menu is open; false where none can be opened.
  [[nodiscard]] bool letTimePassWithMenuOpen(double seconds);

  /// Exactly two displays, side by side, 1000 by 800 points each. The first, numbered 1, is the
  /// main one, built in, named "Left" and known by the UUID of `leftUUID`; the second, numbered 2,
  /// is named "Right" and has no UUID.
  [[nodiscard]] bool arrangeTwoDisplays();
  static constexpr const char* leftUUID = "37D8832A-2D66-02CA-B9F7-8F30A301B230";
  /// Any change of the displays.
  [[nodiscard]] bool changeDisplays();
  [[nodiscard]] bool setTrusted(bool isTrusted);
  /// A movement of the pointer by hardware; global coordinates. A real Mac posts one in the
  /// hardware's place where ORVANE_POST_MOVEMENTS is set in the environment.
  [[nodiscard]] bool movePointer(CGPoint goal);
  /// The modifier keys that are held from now on.
  [[nodiscard]] bool holdModifiers(std::uint64_t flags);
  /// The system disables the event taps of the application and says why.
  [[nodiscard]] bool disableTaps(CGEventType reason);
  /// Another program stores a text, or a number, in its preferences.
  [[nodiscard]] bool storePreference(const std::string& application, const std::string& key,
                                     const std::string& text);
  [[nodiscard]] bool storePreference(const std::string& application, const std::string& key,
                                     double number);
  [[nodiscard]] bool setLocale(const std::vector<std::string>& preferred,
                               const std::string& current);
  /// Registrations of the login item fail with this text.
  [[nodiscard]] bool failLoginItem(const std::string& text);
  /// Opening links has no consequence for anybody. False on a real Mac, where it would have.
  [[nodiscard]] bool canOpenLinks() const;
  /// Links that begin so are refused.
  [[nodiscard]] bool refuseLinks(const std::string& prefix);
  /// A value of another type than text and truth in the user defaults.
  [[nodiscard]] bool storeNumberInUserDefaults(const std::string& key, double number);
  /// The application's bundle lies on a volume that cannot be written to.
  [[nodiscard]] bool makeVolumeReadOnly();
  /// The login item may be registered and unregistered without consequence for anybody.
  [[nodiscard]] bool canRegisterLoginItem() const;

  /// What the window system itself says of a window that can be told such things only.
  struct WindowAttributes {
    std::int64_t level = 0;
    std::uint64_t collectionBehavior = 0;
    bool isFloatingPanel = false;
    bool hidesOnDeactivate = false;
    bool becomesKeyOnlyIfNeeded = false;
    bool canBecomeKey = false;
    bool canBecomeMain = false;
    bool isOpaque = false;
    bool hasShadow = false;
    bool isMovableByBackground = false;
    bool hasTransparentTitlebar = false;
    bool isTitleHidden = false;
    CGSize minSize{};
    CGSize maxSize{};
    std::string title;
  };
  [[nodiscard]] static WindowAttributes attributesOf(const appkit::Window& window);

  /// The button goes down at one place and the pointer is moved to another, in global coordinates;
  /// the button stays down.
  [[nodiscard]] bool dragPointer(CGPoint from, CGPoint to);
  void releasePointer();
  struct DraggedFile {
    std::string url;
    /// The values of NSDragOperation, or-ed together.
    unsigned operations = 0;
  };
  /// The file that is on its way with the pointer; none when there is none.
  [[nodiscard]] std::optional<DraggedFile> draggedFile() const;

 private:
  struct Platform;
  std::unique_ptr<Platform> platform_;
};

}  // namespace orvane
