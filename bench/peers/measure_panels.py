"""Runs each panel program several times and prints the minimum time to the first frame and the medians
of processor time and memory.

The toolkits take turns, so that disturbances of the machine affect all of them alike. Usage, from
bench/peers/panels: measure_panels.py RUNS PANEL PEERS, with the view kit's program and the folder of
the two others.
"""

import os
import pathlib
import statistics
import subprocess
import sys
import time


def programs(panel, peers):
    """Name, command and environment of each."""
    qml = pathlib.Path(__file__).resolve().parent / "panel" / "Panel.qml"
    return [
        ("Orvane's view kit", [panel], {}),
        ("Qt 6 Quick (software)", [f"{peers}/qt-panel", str(qml)],
         {"QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software", "QT_SCALE_FACTOR": "2",
          "QSG_RENDER_LOOP": "basic"}),
        ("GTK 4 (cairo)", [f"{peers}/gtk-panel"],
         {"GDK_BACKEND": "x11", "GSK_RENDERER": "cairo", "GDK_SCALE": "2", "GTK_A11Y": "none"}),
    ]


def measure(command, environment, picture):
    """The figures that one run of a program prints, by name."""
    everything = dict(os.environ, **environment, PANEL_PICTURE=picture)
    everything["PANEL_STARTED_MS"] = str(time.clock_gettime(time.CLOCK_MONOTONIC) * 1000)
    done = subprocess.run(command, env=everything, check=True, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True)
    return {name: float(value) for name, value in
            (line.split() for line in done.stdout.splitlines())}


def with_screen(work):
    """Runs the work while an X server without a screen is running."""
    reader, writer = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", "1600x1400x24"],
                              pass_fds=[writer], stderr=subprocess.DEVNULL)
    os.close(writer)
    try:
        with os.fdopen(reader) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()
        work()
    finally:
        server.terminate()
        server.wait()


def main():
    runs, panel, peers = int(sys.argv[1]), sys.argv[2], sys.argv[3]
    results = {}

    def take_turns():
        for run in range(runs + 1):
            for name, command, environment in programs(panel, peers):
                picture = f"{peers}/{os.path.basename(command[0])}.png"
                figures = measure(command, environment, picture)
                if run > 0:  # The first round only warms the caches of the disk.
                    results.setdefault(name, []).append(figures)

    with_screen(take_turns)
    print(f"{'':24}{'first frame ms':>16}{'repaint ms':>14}{'resident MB':>14}")
    for name, all_runs in results.items():
        first = min(run["first_frame_ms"] for run in all_runs)
        repaint, resident = (statistics.median(run[figure] for run in all_runs)
                             for figure in ("repaint_ms", "resident_kb"))
        print(f"{name:24}{first:16.1f}{repaint:14.2f}{resident / 1024:14.1f}")


main()
