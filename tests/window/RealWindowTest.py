#!/usr/bin/env python3
# Drives the real window under Xvfb with xdotool's mouse and keyboard events, and checks the screen's
# pixels and the dump on exit.
import argparse
import json
import os
import pathlib
import signal
import struct
import subprocess
import sys
import tempfile
import time
import unittest

DESK = XVFB = XDOTOOL = ""
SCREEN = (1600, 900)
WINDOW = (1480, 800)
# The middle of the Dock's first tile, in points from the Dock's middle and the display's lower edge.
FIRST_TILE = (-239, 35)
# The middle of the status item, in points from the display's upper right corner.
STATUS_ITEM = (-206, 12)
# The window's top left corner on the screen.
CORNER = tuple((SCREEN[index] - WINDOW[index]) // 2 for index in (0, 1))
# The hardware panel's controls in the window, with two displays.
PANEL = {"attach": (1404, 127), "left": (1296, 188), "hide": (1439, 219), "dark": (1407, 309),
         "black": (1384, 340), "zones": (1439, 463)}
# The colour of the upper part of the first tile, unique on the desk.
TILE_BLUE = (100, 176, 246)


class Screen:
    """A virtual X display, with its pixels in a file."""

    def __init__(self, folder):
        read_end, write_end = os.pipe()
        self.folder = folder
        self.process = subprocess.Popen(
            [XVFB, "-displayfd", str(write_end), "-screen", "0", "%dx%dx24" % SCREEN,
             # By default it resets, and refuses connections, whenever its only client leaves.
             "-fbdir", str(folder), "-nolisten", "tcp", "-noreset"],
            pass_fds=[write_end], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            self.name = ":" + pipe.readline().strip()

    def close(self):
        self.process.terminate()
        self.process.wait(10)

    def pixels(self):
        """A function from coordinates to the present colours of the screen."""
        data = (self.folder / "Xvfb_screen0").read_bytes()
        # The X window dump's header: 25 numbers of 32 bits, big-endian.
        header = struct.unpack(">25I", data[:100])
        size, line, colors = header[0], header[12], header[19]
        start = size + 12 * colors

        def at(x, y):
            offset = start + y * line + x * 4
            blue, green, red = data[offset:offset + 3]
            return (red, green, blue)
        return at


class RealWindow(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.path = pathlib.Path(self.folder.name)
        self.screen = Screen(self.path)
        self.addCleanup(self.screen.close)
        self.desk = None
        self.addCleanup(self.kill)

    def kill(self):
        if self.desk is not None and self.desk.poll() is None:
            self.desk.kill()
            self.desk.wait(10)

    def environment(self, display):
        environment = dict(os.environ, SDL_VIDEODRIVER="x11",
                           ASAN_OPTIONS="detect_leaks=0")
        for name in ("WAYLAND_DISPLAY", "DISPLAY"):
            environment.pop(name, None)
        if display:
            environment["DISPLAY"] = display
        else:
            environment.pop("SDL_VIDEODRIVER")
        return environment

    def start(self):
        self.desk = subprocess.Popen(
            [DESK, "--dump", str(self.path / "dump.json"), "--width", str(WINDOW[0]), "--height",
             str(WINDOW[1])],
            env=self.environment(self.screen.name))
        self.wait_for(lambda: self.do("search", "--onlyvisible", "--name", "Orvane desk"),
                      "the window")
        # The panel's background at the window's lower right corner.
        self.wait_for(lambda: min(self.screen.pixels()(1530, 840)) > 230, "the first picture")
        time.sleep(0.2)

    def wait_for(self, holds, what):
        for _ in range(150):
            if holds():
                return
            self.assertIsNone(self.desk.poll(), "the desk has ended")
            time.sleep(0.1)
        self.fail("timed out waiting for " + what)

    def do(self, *arguments):
        result = subprocess.run([XDOTOOL, *map(str, arguments)], capture_output=True, text=True,
                                env=self.environment(self.screen.name))
        return result.returncode == 0

    def move(self, dx, dy, times=1):
        for _ in range(times):
            self.assertTrue(self.do("mousemove_relative", "--", dx, dy))

    def end(self):
        """Closes the window and returns the dump."""
        time.sleep(0.3)
        self.desk.send_signal(signal.SIGTERM)
        self.assertEqual(self.desk.wait(30), 0)
        return json.loads((self.path / "dump.json").read_text())

    def click(self, x, y):
        self.do("mousemove", x, y)
        time.sleep(0.3)
        self.do("click", 1)
        time.sleep(0.3)

    def hold_mouse_on_right_display(self):
        self.click(1000, 400)

    def click_panel(self, name):
        self.click(CORNER[0] + PANEL[name][0], CORNER[1] + PANEL[name][1])

    def measure(self):
        """Measures the screens in the window with a session without input."""
        self.start()
        self.layout = self.end()["window"]
        # A new screen, whose keyboard focus is untouched.
        self.screen.close()
        self.screen = Screen(self.path)
        self.addCleanup(self.screen.close)

    def keys(self, *names):
        for name in names:
            self.do("key", name)
            time.sleep(0.15)

    def open_menu(self):
        """Opens the status item's menu on the first display, which captures the mouse."""
        x, y, width, _ = self.layout["screens"][0]["pixels"]
        scale = self.layout["scale"]
        self.click(round(CORNER[0] + x + width + STATUS_ITEM[0] * scale),
                   round(CORNER[1] + y + STATUS_ITEM[1] * scale))

    @staticmethod
    def shows_dock(at, dump, display):
        """Whether the Dock's first tile is visible on this display."""
        window = dump["window"]
        left, top = CORNER
        x, y, width, height = next(screen["pixels"] for screen in window["screens"]
                                   if screen["display"] == display)
        middle = left + x + width / 2 + FIRST_TILE[0] * window["scale"]
        bottom = top + y + height - FIRST_TILE[1] * window["scale"]
        # The tile's upper left part, beside its sign.
        color = at(round(middle - 15 * window["scale"]), round(bottom - 15 * window["scale"]))
        return all(abs(seen - wanted) < 24 for seen, wanted in zip(color, TILE_BLUE))

    def test_follows_then_stays(self):
        self.measure()
        self.start()
        at_first = self.screen.pixels()
        self.hold_mouse_on_right_display()
        self.move(0, 40, 15)
        time.sleep(0.8)
        followed = self.screen.pixels()
        # Back to the display on the left, and the Dock with it.
        self.move(-60, -20, 8)
        self.move(-60, 0, 8)
        self.move(0, 40, 15)
        time.sleep(0.8)
        taken_back = self.screen.pixels()
        # Pin it there with the menu and the keyboard.
        self.keys("Escape")
        self.open_menu()
        self.keys("Down", "Down", "Down", "space", "Escape")
        self.move(60, 0, 10)
        self.move(0, 40, 40)
        time.sleep(0.8)
        stayed = self.screen.pixels()
        dump = self.end()

        seen = [(self.shows_dock(at, dump, 1), self.shows_dock(at, dump, 2))
                for at in (at_first, followed, taken_back, stayed)]
        self.assertEqual(seen, [(True, False), (False, True), (True, False), (True, False)], dump)
        self.assertEqual(dump["dock"]["display"], 1)
        self.assertEqual(dump["dock"]["reveals"], {"1": 1, "2": 1})
        self.assertTrue(dump["application"]["guardRunning"])
        self.assertGreaterEqual(dump["application"]["blockedCount"], 20)
        self.assertEqual(dump["pointer"]["display"], 2)

    def test_modifier_unlocks(self):
        self.measure()
        self.start()
        self.open_menu()
        self.keys("Down", "Down", "Down", "space", "Escape", "Escape")
        self.hold_mouse_on_right_display()
        self.move(0, 40, 15)
        blocked_only = self.screen.pixels()
        self.do("keydown", "alt")
        time.sleep(0.2)
        self.move(0, 40, 5)
        time.sleep(0.8)
        unlocked = self.screen.pixels()
        self.do("keyup", "alt")
        time.sleep(0.2)
        self.move(0, -1)
        dump = self.end()
        self.assertFalse(self.shows_dock(blocked_only, dump, 2))
        self.assertTrue(self.shows_dock(unlocked, dump, 2))
        self.assertEqual(dump["dock"]["display"], 2)
        self.assertGreater(dump["application"]["blockedCount"], 0)
        self.assertFalse(dump["application"]["isTemporarilyUnlocked"])
        self.assertEqual(dump["modifiers"], 0)

    def test_panel_and_plugging(self):
        self.measure()
        self.start()
        self.open_menu()
        # Prevent; the first Escape closes the menu, the second releases the mouse.
        self.keys("Down", "Down", "Return", "Escape", "Escape")
        for name in ("left", "hide", "zones", "dark", "black", "attach"):
            self.click_panel(name)
        dump = self.end()
        self.assertEqual([screen["display"] for screen in dump["window"]["screens"]], [1, 2, 3])
        self.assertTrue(dump["application"]["hidesDockOnAllDisplays"])
        # At the left edges: all of the left display, and the part of the right one that exceeds the
        # middle one.
        self.assertEqual(dump["application"]["zones"], 2)
        self.assertEqual(dump["dock"]["edge"], "left")
        self.assertTrue(dump["dock"]["autohide"])
        self.assertFalse(dump["dock"]["visible"])

    def test_rests_when_nothing_happens(self):
        self.start()
        time.sleep(1.5)
        used = self.processor_seconds()
        time.sleep(4)
        used = self.processor_seconds() - used
        dump = self.end()
        # The first pictures, and one or two more if a minute ends.
        self.assertLess(dump["drawnFrames"], 12)
        self.assertLess(used, 0.4)

    def processor_seconds(self):
        fields = pathlib.Path("/proc/%d/stat" % self.desk.pid).read_text().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def test_says_when_there_is_no_display(self):
        result = subprocess.run([DESK], capture_output=True, text=True, timeout=60,
                                env=self.environment(None))
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("no window can be opened", result.stderr)


def main():
    global DESK, XVFB, XDOTOOL
    parser = argparse.ArgumentParser()
    parser.add_argument("--desk", required=True)
    parser.add_argument("--xvfb", default="Xvfb")
    parser.add_argument("--xdotool", default="xdotool")
    parser.add_argument("cases", nargs="*")
    options = parser.parse_args()
    DESK, XVFB, XDOTOOL = options.desk, options.xvfb, options.xdotool
    names = ["RealWindow.test_" + case.replace("-", "_") for case in options.cases]
    unittest.main(argv=[sys.argv[0], "-v", *names])


if __name__ == "__main__":
    main()
