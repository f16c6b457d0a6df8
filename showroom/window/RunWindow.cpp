// The loop of the window: input, time, drawing.
#include "showroom/window/RunWindow.hpp"

#include <fstream>
#include <iostream>
#include <string>

#include "desk/canvas/PinnedFonts.hpp"
#include "showroom/hardware/HardwarePanelHost.hpp"
#include "showroom/window/DeskSession.hpp"
#include "showroom/window/FramePump.hpp"
#include "showroom/window/SdlWindow.hpp"
#include "showroom/window/WindowDump.hpp"
#include "showroom/window/WindowInput.hpp"
#include "showroom/window/WindowLayout.hpp"
#include "showroom/window/WindowPicture.hpp"

namespace orvane::showroom {

namespace {

/// Runs until the window is closed. Returns when it was drawn.
WindowFrames run(DeskSession& session, SdlWindow& window, HardwarePanelHost& panel,
                 WindowPicture& picture) {
  const int framesPerSecond = window.framesPerSecond();
  FramePump pump(framesPerSecond);
  WindowInput input(session, window, panel);
  while (!input.wantsToQuit()) {
    const bool isOutdated = picture.isOutdated(session, window.isMouseHeld());
    if (isOutdated && pump.isTimeToDraw()) {
      pump.beginPicture();
      picture.draw(window.surface(), window.layout(), session, window.isMouseHeld());
      window.present();
      pump.endPicture();
    }
    SDL_Event event;
    const bool stillOutdated = picture.isOutdated(session, window.isMouseHeld());
    bool hasEvent =
        SDL_WaitEventTimeout(&event, pump.millisecondsToWait(session, stillOutdated)) != 0;
    pump.advance(session);
    while (hasEvent) {
      input.handle(event);
      hasEvent = SDL_PollEvent(&event) != 0;
    }
    if (input.takeNeedsRedraw()) {
      window.updateSize();
      picture.invalidate();
    }
  }
  return {framesPerSecond, pump.shownMilliseconds()};
}

}  // namespace

int runWindow(const WindowOptions& options) {
  if (const auto message = desk::missingFontsMessage()) {
    std::cerr << "orvane-desk: " << *message << '\n';
    return 1;
  }
  std::string error;
  const auto window = SdlWindow::open(options.width, options.height, error);
  if (!window) {
    std::cerr << "orvane-desk: no window can be opened here: " << error << '\n';
    return 1;
  }
  DeskSession session(options.displayCount);
  HardwarePanelHost panel(session.hardware());
  WindowPicture picture(panel);
  const WindowFrames frames = run(session, *window, panel, picture);
  if (options.dumpFile) {
    std::ofstream file(*options.dumpFile);
    file << windowDump(session, window->layout(), frames);
    if (!file.flush()) {
      std::cerr << "orvane-desk: cannot write " << options.dumpFile->string() << '\n';
      return 1;
    }
  }
  return 0;
}

}  // namespace orvane::showroom
