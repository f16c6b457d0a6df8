// ContractFixture sets up the preconditions of contract tests. The tests use only the platform
// interface; each platform implements this fixture.
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

/// Operations that return a bool set up a precondition and return true, or return false if the
/// platform cannot provide it; the test then skips. The desk can provide everything, a real Mac
/// very little: its state belongs to its user.
class ContractFixture : public testing::Test {
 public:
  ~ContractFixture() override;

 protected:
  ContractFixture();

  /// Runs the main run loop for this time.
  void letTimePass(double seconds);
  /// The same with an open menu; false if no menu can be opened.
  [[nodiscard]] bool letTimePassWithMenuOpen(double seconds);

  /// Attaches exactly two displays, side by side, of 1000 by 800 points each. Display 1 is the main
  /// and built-in one, has the name "Left" and the UUID `leftUUID`; display 2 has the name "Right"
  /// and no UUID.
  [[nodiscard]] bool arrangeTwoDisplays();
  static constexpr const char* leftUUID = "37D8832A-2D66-02CA-B9F7-8F30A301B230";
  /// Changes the displays in any way.
  [[nodiscard]] bool changeDisplays();
  [[nodiscard]] bool setTrusted(bool isTrusted);
  /// Moves the pointer as hardware does; global coordinates. On a real Mac the movement is posted,
  /// and only if the environment variable ORVANE_POST_MOVEMENTS is set.
  [[nodiscard]] bool movePointer(CGPoint goal);
  /// Sets the modifier keys that are held from now on.
  [[nodiscard]] bool holdModifiers(std::uint64_t flags);
  /// Disables the application's event taps as the system does, and reports the reason.
  [[nodiscard]] bool disableTaps(CGEventType reason);
  /// Stores a string or a number in the preferences of another program.
  [[nodiscard]] bool storePreference(const std::string& application, const std::string& key,
                                     const std::string& text);
  [[nodiscard]] bool storePreference(const std::string& application, const std::string& key,
                                     double number);
  [[nodiscard]] bool setLocale(const std::vector<std::string>& preferred,
                               const std::string& current);
  /// Makes registrations of the login item fail with this error.
  [[nodiscard]] bool failLoginItem(const std::string& text);
  /// Makes opening links free of side effects; false on a real Mac.
  [[nodiscard]] bool canOpenLinks() const;
  /// Makes opening links with this prefix fail.
  [[nodiscard]] bool refuseLinks(const std::string& prefix);
  /// Stores a value that is neither a string nor a Boolean in the user defaults.
  [[nodiscard]] bool storeNumberInUserDefaults(const std::string& key, double number);
  /// Places the application's bundle on a read-only volume.
  [[nodiscard]] bool makeVolumeReadOnly();
  /// Makes registering and unregistering the login item free of side effects.
  [[nodiscard]] bool canRegisterLoginItem() const;

  /// The attributes of a window that the platform interface can only set, as the window system
  /// reports them.
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

  /// Presses the button at one point and moves the pointer to another, in global coordinates; the
  /// button stays down.
  [[nodiscard]] bool dragPointer(CGPoint from, CGPoint to);
  void releasePointer();
  struct DraggedFile {
    std::string url;
    /// A mask of NSDragOperation values.
    unsigned operations = 0;
  };
  /// The file of the current dragging session, if any.
  [[nodiscard]] std::optional<DraggedFile> draggedFile() const;

 private:
  struct Platform;
  std::unique_ptr<Platform> platform_;
};

}  // namespace orvane
