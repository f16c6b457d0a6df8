"""Runs each panel program several times and prints the medians of what they say about themselves.

The toolkits take turns, so that a disturbance of the machine meets all of them. Started by
bench/peers/panels as: measure_panels.py RUNS PROJECT PEERS
"""

import os
import statistics
import subprocess
import sys
import time

FIGURES = ("first_frame_ms", "repaint_ms", "resident_kb")


def programs(project, peers):
    """Name, command and environment of each."""
    qml = f"{project}/bench/peers/panel/Panel.qml"
    return [
        ("Orvane's view kit", [f"{project}/build/desk-release/orvane-panel"], {}),
        ("Qt 6 Quick (software)", [f"{peers}/qt-panel", qml],
         {"QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software", "QT_SCALE_FACTOR": "2",
          "QSG_RENDER_LOOP": "basic"}),
        ("GTK 4 (cairo)", [f"{peers}/gtk-panel"],
         {"GDK_BACKEND": "x11", "GSK_RENDERER": "cairo", "GDK_SCALE": "2", "GTK_A11Y": "none"}),
    ]


def measure(command, environment, picture):
    """What one run of a program prints, by name."""
    everything = dict(os.environ, **environment, PANEL_PICTURE=picture)
    everything["PANEL_STARTED_MS"] = str(time.clock_gettime(time.CLOCK_MONOTONIC) * 1000)
    done = subprocess.run(command, env=everything, check=True, capture_output=True, text=True)
    return {name: float(value) for name, value in
            (line.split() for line in done.stdout.splitlines())}


def with_screen(work):
    """Runs the work while an X server without a screen is there."""
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
    runs, project, peers = int(sys.argv[1]), sys.argv[2], sys.argv[3]
    results = {}

    def take_turns():
        for run in range(runs + 1):
            for name, command, environment in programs(project, peers):
                picture = f"{peers}/{os.path.basename(command[0])}.png"
                figures = measure(command, environment, picture)
                if run > 0:  # The first round only warms the caches of the disk.
                    results.setdefault(name, []).append(figures)

    with_screen(take_turns)
    print(f"{'':24}{'first frame ms':>16}{'repaint ms':>14}{'resident MB':>14}")
    for name, all_runs in results.items():
        first, repaint, resident = (statistics.median(run[figure] for run in all_runs)
                                    for figure in FIGURES)
        print(f"{name:24}{first:16.1f}{repaint:14.2f}{resident / 1024:14.1f}")


main()
