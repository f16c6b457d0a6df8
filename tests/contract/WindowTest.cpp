// Contract tests for windows and panels, their content, and the attributes that the window system
// receives.
#include <memory>
#include <tuple>

#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/View.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::Window;
using appkit::WindowKind;

class WindowContract : public ContractFixture {
 protected:
  /// Uses the real displays where displays cannot be arranged.
  void haveDisplays() { std::ignore = arrangeTwoDisplays(); }

  static Window borderless(WindowKind kind = WindowKind::window) {
    return {kind, CGRectMake(100, 100, 200, 100), appkit::StyleMask::borderless};
  }
};

TEST_F(WindowContract, ANewWindowIsNotVisibleAndHasTheContentSizeWithoutATitleBar) {
  const Window window = borderless();
  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(window.isMiniaturized());
  EXPECT_EQ(window.frame().size.width, 200);
  EXPECT_EQ(window.frame().size.height, 100);
  EXPECT_EQ(window.kind(), WindowKind::window);
  EXPECT_EQ(borderless(WindowKind::panel).kind(), WindowKind::panel);
}

TEST_F(WindowContract, ATitleBarComesOnTopOfTheContent) {
  const Window window(WindowKind::panel, CGRectMake(0, 0, 200, 100),
                      appkit::StyleMask::titled | appkit::StyleMask::closable);
  EXPECT_GT(window.frame().size.height, 100);
}

TEST_F(WindowContract, HandlesOfTheSameWindowAreEqual) {
  const Window window = borderless();
  const Window copy = window;
  EXPECT_TRUE(copy == window);
  EXPECT_FALSE(borderless() == window);
}

TEST_F(WindowContract, ItsChildrenMoveWithAWindow) {
  haveDisplays();
  Window parent = borderless();
  Window child = borderless();
  parent.orderFrontRegardless();
  parent.addChildWindowAbove(child);
  ASSERT_EQ(parent.childWindows().size(), 1U);
  EXPECT_TRUE(parent.childWindows().front() == child);
  parent.setFrameOrigin(CGPointMake(120, 90));
  EXPECT_EQ(child.frame().origin.x, 120);
  EXPECT_EQ(child.frame().origin.y, 90);
  parent.removeChildWindow(child);
  EXPECT_TRUE(parent.childWindows().empty());
  child.close();
  parent.close();
}

TEST_F(WindowContract, TheCloseCallbackComesOnceAndMayDropEveryHandle) {
  haveDisplays();
  auto window = std::make_unique<Window>(borderless());
  int calls = 0;
  window->onWillClose([&] {
    ++calls;
    window.reset();
  });
  window->orderFrontRegardless();
  EXPECT_TRUE(window->isVisible());
  Window(*window).close();
  EXPECT_EQ(calls, 1);
  letTimePass(0);
}

TEST_F(WindowContract, ClosingWorksWithoutADelegate) {
  Window window = borderless();
  int calls = 0;
  window.onWillClose([&] { ++calls; });
  window.clearDelegate();
  window.close();
  EXPECT_EQ(calls, 0);
}

TEST_F(WindowContract, ABorderlessWindowDoesNotBecomeKeyUnlessAllowed) {
  haveDisplays();
  Window window = borderless();
  window.makeKeyAndOrderFront();
  EXPECT_FALSE(window.isKeyWindow());
  window.close();
}

TEST_F(WindowContract, TheContentViewFillsTheWindowAndCanBeRemoved) {
  Window window = borderless();
  const appkit::HostingView view([](const ui::Environment&) { return ui::View(); });
  EXPECT_FALSE(window.contentView().has_value());
  window.setContentView(view);
  ASSERT_TRUE(window.contentView().has_value());
  EXPECT_EQ(window.contentView()->frame().size.width, 200);
  EXPECT_EQ(window.contentView()->frame().size.height, 100);
  window.clearContentView();
  EXPECT_FALSE(window.contentView().has_value());
}

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

using appkit::HostingView;
using HostingViewContract = ContractFixture;

TEST_F(HostingViewContract, ItsFittingSizeIsThatOfItsContent) {
  const HostingView view([](const ui::Environment&) { return ui::Rectangle().frame(30, 20); });
  EXPECT_EQ(view.fittingSize().width, 30);
  EXPECT_EQ(view.fittingSize().height, 20);
}

TEST_F(HostingViewContract, ItsContentIsRebuiltOnlyWhenItNeedsAnUpdate) {
  double width = 30;
  HostingView view([&](const ui::Environment&) { return ui::Rectangle().frame(width, 20); });
  EXPECT_EQ(view.fittingSize().width, 30);
  width = 50;
  EXPECT_EQ(view.fittingSize().width, 30);
  view.setNeedsUpdate();
  EXPECT_EQ(view.fittingSize().width, 50);
}

TEST_F(HostingViewContract, ItAvoidsATitleBarUnlessConfiguredAndKeepsItsFrame) {
  HostingView view([](const ui::Environment&) { return ui::View(); });
  EXPECT_TRUE(view.respectsSafeArea());
  view.setRespectsSafeArea(false);
  EXPECT_FALSE(view.respectsSafeArea());
  view.setFrame(CGRectMake(1, 2, 30, 40));
  EXPECT_TRUE(CGRectEqualToRect(view.frame(), CGRectMake(1, 2, 30, 40)));
}

}  // namespace
}  // namespace orvane
