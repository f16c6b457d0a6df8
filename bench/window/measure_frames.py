#!/usr/bin/env python3
"""Drives the desk's window under Xvfb and reads from its dump when each frame was shown.

Usage: measure_frames.py PROGRAM SECONDS"""
import json
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time

SCREEN = (1600, 900)
WINDOW = (1480, 800)
DISPLAYS = 3
# The middle of the status item, in points from the display's upper right corner.
STATUS_ITEM = (-206, 12)
# About the rate at which a mouse reports.
EVENTS_PER_SECOND = 125
# The sweep: the number and size of the steps to one side, and then back.
STEPS, STEP_PIXELS = 50, 3
# A frame that is late by more than half its duration counts as missed.
LATE = 1.5


class Desk:
    def __init__(self, program, folder):
        self.folder = folder
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "%dx%dx24" % SCREEN,
             "-nolisten", "tcp"],
            pass_fds=[write_end], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            display = ":" + pipe.readline().strip()
        self.environment = dict(os.environ, DISPLAY=display, SDL_VIDEODRIVER="x11")
        self.environment.pop("WAYLAND_DISPLAY", None)
        self.process = subprocess.Popen(
            [program, "--displays", str(DISPLAYS), "--dump", str(folder / "dump.json"),
             "--width", str(WINDOW[0]), "--height", str(WINDOW[1])], env=self.environment)
        self.do("search --sync --onlyvisible --name 'Orvane desk'")
        time.sleep(2)

    def do(self, script):
        """Runs xdotool commands, one a line."""
        subprocess.run(["xdotool", "-"], input=script + "\n", text=True, check=True,
                       env=self.environment, stdout=subprocess.DEVNULL)

    def end(self):
        self.process.send_signal(signal.SIGTERM)
        self.process.wait(30)
        self.server.terminate()
        self.server.wait(10)
        return json.loads((self.folder / "dump.json").read_text())


def session(program, act):
    with tempfile.TemporaryDirectory() as folder:
        desk = Desk(program, pathlib.Path(folder))
        act(desk)
        return desk.end()


def sweep(seconds):
    """Moves the mouse to and fro over the panel's cards."""
    lines = []
    for event in range(seconds * EVENTS_PER_SECOND):
        direction = 1 if event // STEPS % 2 == 0 else -1
        lines.append("mousemove_relative -- %d 0" % (direction * STEP_PIXELS))
        lines.append("sleep %.4f" % (1 / EVENTS_PER_SECOND))
    return "\n".join(lines)


def main():
    program, seconds = sys.argv[1], int(sys.argv[2])
    layout = session(program, lambda desk: None)["window"]
    corner = [(SCREEN[index] - WINDOW[index]) // 2 for index in (0, 1)]
    left, top, width, height = layout["screens"][0]["pixels"]
    scale = layout["scale"]
    marks = {}

    def act(desk):
        desk.do("mousemove %d %d" % (corner[0] + left + width + STATUS_ITEM[0] * scale,
                                     corner[1] + top + STATUS_ITEM[1] * scale))
        desk.do("sleep 0.5\nclick 1\nsleep 1\nkey Up\nsleep 0.5\nkey Up\nsleep 0.5\nkey Up\n"
                "sleep 0.5\nkey Return\nsleep 2\nkey Escape\nsleep 0.5")
        # The panel is centred on its screen, and its cards are slightly above its middle.
        desk.do("mousemove %d %d\nsleep 1" % (corner[0] + left + width // 2 - STEPS * STEP_PIXELS // 2,
                                              corner[1] + top + height // 2 - 40 * scale))
        marks["rested"] = time.monotonic()
        desk.do(sweep(seconds))
        marks["swept"] = time.monotonic()

    dump = session(program, act)
    if "main" not in dump["application"].get("windows", []):
        sys.exit("the panel did not open: %s" % dump["application"])
    frame = 1000 / dump["framesPerSecond"]
    shown = dump["shownMilliseconds"]
    # The sweep begins after the last pause.
    start = max(index for index in range(1, len(shown)) if shown[index] - shown[index - 1] > 500)
    swept = shown[start:]
    gaps = [after - before for before, after in zip(swept, swept[1:])]
    late = sum(max(0, round(gap / frame) - 1) for gap in gaps if gap > LATE * frame)
    print("frames_per_second %d" % dump["framesPerSecond"])
    print("seconds %.1f" % ((swept[-1] - swept[0]) / 1000))
    print("pictures %d" % len(swept))
    print("late %d" % late)
    print("longest_ms %.1f" % max(gaps))
    print("median_ms %.2f" % sorted(gaps)[len(gaps) // 2])


main()
