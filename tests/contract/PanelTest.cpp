// Contract tests for the attributes of windows and panels: the window system receives the requested
// values.
#include "Orvane/platform/appkit/Window.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::Window;
using appkit::WindowKind;
namespace CollectionBehavior = appkit::CollectionBehavior;
namespace StyleMask = appkit::StyleMask;
namespace WindowLevel = appkit::WindowLevel;

class PanelContract : public ContractFixture {
 protected:
  static Window make(WindowKind kind, std::uint64_t styleMask) {
    return {kind, CGRectMake(0, 0, 200, 100), styleMask};
  }
};

TEST_F(PanelContract, TheStyleMaskIsTheOneItWasMadeWith) {
  EXPECT_EQ(make(WindowKind::window, StyleMask::borderless).styleMask(), 0U);
  EXPECT_EQ(make(WindowKind::window, StyleMask::miniaturizable).styleMask(), 4U);
  EXPECT_EQ(make(WindowKind::panel, StyleMask::titled | StyleMask::closable).styleMask(), 3U);
  EXPECT_EQ(make(WindowKind::panel, StyleMask::nonactivatingPanel).styleMask(), 128U);
}

TEST_F(PanelContract, ANewWindowIsOrdinaryAndANewPanelHidesWithItsApplication) {
  const WindowAttributes window = attributesOf(make(WindowKind::window, StyleMask::borderless));
  EXPECT_EQ(window.level, 0);
  EXPECT_EQ(window.collectionBehavior, 0U);
  EXPECT_FALSE(window.hidesOnDeactivate);
  EXPECT_TRUE(window.isOpaque);
  const WindowAttributes panel = attributesOf(make(WindowKind::panel, StyleMask::titled));
  EXPECT_TRUE(panel.hidesOnDeactivate);
  EXPECT_FALSE(panel.isFloatingPanel);
  EXPECT_EQ(panel.level, 0);
}

TEST_F(PanelContract, AFloatingPanelHasTheFloatingLevelUntilAnotherIsSet) {
  Window panel = make(WindowKind::panel, StyleMask::nonactivatingPanel);
  panel.setFloatingPanel(true);
  EXPECT_TRUE(attributesOf(panel).isFloatingPanel);
  EXPECT_EQ(attributesOf(panel).level, 3);
  panel.setLevel(WindowLevel::status);
  EXPECT_EQ(attributesOf(panel).level, 25);
  panel.setLevel(WindowLevel::modalPanel);
  EXPECT_EQ(attributesOf(panel).level, 8);
  panel.setLevel(WindowLevel::normal);
  EXPECT_EQ(attributesOf(panel).level, 0);
}

TEST_F(PanelContract, CollectionBehavioursAreKept) {
  Window panel = make(WindowKind::panel, StyleMask::nonactivatingPanel);
  panel.setCollectionBehavior(
      CollectionBehavior::moveToActiveSpace | CollectionBehavior::stationary |
      CollectionBehavior::fullScreenAuxiliary | CollectionBehavior::auxiliary);
  EXPECT_EQ(attributesOf(panel).collectionBehavior, 0x20112U);
  Window window = make(WindowKind::window, StyleMask::miniaturizable);
  window.setCollectionBehavior(CollectionBehavior::moveToActiveSpace | CollectionBehavior::managed);
  EXPECT_EQ(attributesOf(window).collectionBehavior, 6U);
}

TEST_F(PanelContract, OnlyAWindowWithATitleBarBecomesKeyUnlessAllowed) {
  EXPECT_TRUE(attributesOf(make(WindowKind::panel, StyleMask::titled)).canBecomeKey);
  EXPECT_FALSE(attributesOf(make(WindowKind::panel, StyleMask::titled)).canBecomeMain);
  Window window = make(WindowKind::window, StyleMask::miniaturizable);
  EXPECT_FALSE(attributesOf(window).canBecomeKey);
  EXPECT_FALSE(attributesOf(window).canBecomeMain);
  window.setCanBecomeKeyWindow(true);
  window.setCanBecomeMainWindow(true);
  EXPECT_TRUE(attributesOf(window).canBecomeKey);
  EXPECT_TRUE(attributesOf(window).canBecomeMain);
}

TEST_F(PanelContract, TheOtherAttributesAreKept) {
  Window panel = make(WindowKind::panel, StyleMask::titled);
  panel.setTitle("Orvane");
  panel.setTitleHidden(true);
  panel.setTitlebarAppearsTransparent(true);
  panel.setMovableByWindowBackground(true);
  panel.setOpaque(false);
  panel.setHasShadow(false);
  panel.setHidesOnDeactivate(false);
  panel.setBecomesKeyOnlyIfNeeded(true);
  panel.setMinSize(CGSizeMake(200, 100));
  panel.setMaxSize(CGSizeMake(200, 100));
  WindowAttributes attributes = attributesOf(panel);
  EXPECT_EQ(attributes.title, "Orvane");
  EXPECT_TRUE(attributes.isTitleHidden);
  EXPECT_TRUE(attributes.hasTransparentTitlebar);
  EXPECT_TRUE(attributes.isMovableByBackground);
  EXPECT_FALSE(attributes.isOpaque);
  EXPECT_FALSE(attributes.hasShadow);
  EXPECT_FALSE(attributes.hidesOnDeactivate);
  EXPECT_TRUE(attributes.becomesKeyOnlyIfNeeded);
  EXPECT_EQ(attributes.minSize.width, 200);
  EXPECT_EQ(attributes.maxSize.height, 100);
  panel.setHasShadow(true);
  panel.setBecomesKeyOnlyIfNeeded(false);
  attributes = attributesOf(panel);
  EXPECT_TRUE(attributes.hasShadow);
  EXPECT_FALSE(attributes.becomesKeyOnlyIfNeeded);
}

}  // namespace
}  // namespace orvane
