// When the window is drawn anew, and when not.
#include "desk/window/WindowCommands.hpp"
#include "desk/window/WindowPicture.hpp"
#include "tests/window/SessionFixture.hpp"

namespace orvane::desk {
namespace {

class WindowPictureTest : public SessionFixture {
 protected:
  WindowPictureTest() { session.advance(2 * second); }
  void draw() { picture.draw(surface.get(), layout, session, false); }
  [[nodiscard]] bool isOutdated() const { return picture.isOutdated(session, false); }

  WindowLayout layout{1000, 560, 1};
  SurfacePointer surface{cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 1000, 560)};
  WindowPicture picture;
};

TEST_F(WindowPictureTest, IsOutdatedBeforeTheFirstDrawingAndThenNot) {
  EXPECT_TRUE(isOutdated());
  draw();
  EXPECT_FALSE(isOutdated());
  session.advance(second);
  EXPECT_FALSE(isOutdated());
  picture.forget();
  EXPECT_TRUE(isOutdated());
  draw();
  EXPECT_EQ(picture.drawnCount(), 2);
}

TEST_F(WindowPictureTest, IsOutdatedByEveryMovement) {
  draw();
  session.movePointerBy(1, 0);
  EXPECT_TRUE(isOutdated());
}

TEST_F(WindowPictureTest, IsOutdatedByEveryKeyThatChangesSomething) {
  for (const WindowCommand& command : windowCommands()) {
    draw();
    ASSERT_FALSE(isOutdated()) << command.key;
    runWindowCommand(session, command.key);
    EXPECT_TRUE(isOutdated()) << command.key;
    session.advance(second);
  }
}

TEST_F(WindowPictureTest, IsOutdatedByTheMinuteAndByHoldingTheMouse) {
  draw();
  EXPECT_TRUE(picture.isOutdated(session, true));
  session.application().terminate();
  draw();
  session.advance(session.nanosecondsToNextChange());
  EXPECT_TRUE(isOutdated());
}

TEST_F(WindowPictureTest, IsNotOutdatedByAnApplicationThatOnlyLooksAfterItself) {
  session.advance(second);
  draw();
  session.advance(5 * second);
  EXPECT_FALSE(isOutdated());
}

TEST_F(WindowPictureTest, IsOutdatedByAWindowThatOpens) {
  draw();
  session.application().reopen();
  EXPECT_TRUE(isOutdated());
}

TEST_F(WindowPictureTest, IsDrawnWheneverTheSessionSaysThatItChanges) {
  runWindowCommand(session, 'u');
  draw();
  ASSERT_EQ(session.nanosecondsToNextChange(), 0);
  int pictures = 0;
  while (session.nanosecondsToNextChange() == 0) {
    session.advance(second / 60);
    pictures += isOutdated() ? 1 : 0;
    draw();
  }
  EXPECT_GE(pictures, 14);
  EXPECT_LE(pictures, 17);
}

TEST_F(WindowPictureTest, CoversTheWholeWindow) {
  draw();
  cairo_surface_flush(surface.get());
  const unsigned char* const data = cairo_image_surface_get_data(surface.get());
  const int stride = cairo_image_surface_get_stride(surface.get());
  for (int y = 0; y < 560; y += 5) {
    for (int x = 0; x < 1000; x += 5) {
      ASSERT_EQ(data[y * stride + x * 4 + 3], 255) << x << " " << y;
    }
  }
}

}  // namespace
}  // namespace orvane::desk
