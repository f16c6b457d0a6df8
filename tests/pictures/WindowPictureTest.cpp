// Painted windows against kept pictures: shadow, glass, corners, title bar.
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/WallpaperArt.hpp"
#include "showroom/desktop/WindowArt.hpp"
#include "tests/support/KeptPicture.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane::showroom {
namespace {

class WindowPictureTest : public desk::MachineFixture {
 protected:
  static constexpr int width = 340;
  static constexpr int height = 240;

  WindowPictureTest() {
    desk::Display display;
    display.number = 1;
    display.frame = CGRectMake(0, 0, width, height);
    EXPECT_FALSE(machine.displays.attach(display, true));
  }

  static appkit::HostingView content() {
    return appkit::HostingView([](const ui::Environment&) {
      return ui::View(ui::VStack(6, {ui::Symbol("lock").font(ui::Font::system(28)),
                                     ui::Text("Pin Dock").font(ui::Font::headline()),
                                     ui::Text("固定 Dock").foreground(ui::Color::secondary())}));
    });
  }

  static appkit::Window window(std::uint64_t styleMask) {
    appkit::Window made(appkit::WindowKind::window, CGRectMake(70, 60, 200, 120), styleMask);
    made.setReleasedWhenClosed(false);
    return made;
  }

  void expectWindows(const std::string& name, desk::Appearance::Wallpaper wallpaper) {
    const desk::SurfacePointer surface = desk::imageSurface(width, height);
    desk::WindowServer& server = desk::WindowServer::current();
    GlassCache glass;
    desk::CairoCanvas canvas(surface.get(), 1, server.resources());
    paintWallpaper(canvas.context(), wallpaper, machine.appearance.isDark, width, height);
    for (const auto& shown : server.windows()) {
      paintWindow(canvas, server, *shown, glass);
    }
    EXPECT_EQ(desk::differenceFromKept(surface.get(), "tests/pictures/" + name + ".png"),
              std::nullopt);
  }
};

TEST_F(WindowPictureTest, AFramelessWindowOfGlass) {
  appkit::HostingView view = content();
  view.setLayerCorners(24, appkit::CornerCurve::continuous, true);
  view.setBackdrop(appkit::Backdrop::behindWindow);
  appkit::Window glass = window(0);
  glass.setOpaque(false);
  glass.setClearBackground();
  glass.setContentView(view);
  glass.orderFrontRegardless();
  machine.runDue();
  expectWindows("glass-window", desk::Appearance::Wallpaper::busy);
}

TEST_F(WindowPictureTest, AWindowWithATitleInTheDark) {
  machine.appearance.isDark = true;
  appkit::Window titled = window(appkit::StyleMask::titled | appkit::StyleMask::closable);
  titled.setTitle("Title");
  titled.setContentView(content());
  titled.makeKeyAndOrderFront();
  machine.runDue();
  expectWindows("titled-window", desk::Appearance::Wallpaper::white);
}

}  // namespace
}  // namespace orvane::showroom
