"""window_figures.py BUILD FILE [STARTS]: starts the program and the reference window by turns, and writes to FILE what
each took until its first picture, and what it takes while it waits; with STARTS, only so many starts of each. Runs on a
display and a session bus of its own (tests/e2e/desktop)."""

import json
import os
import select
import subprocess
import sys
import time

from Xlib import X, display
from Xlib.ext import damage

BUILD = sys.argv[1]
STARTS = int(sys.argv[3]) if len(sys.argv) > 3 else 15
SETTLED = 2.0  # seconds after which memory is measured
IDLE = 20.0  # seconds
SIZE = (800, 630)
PATIENCE = 60.0  # seconds for a first picture

screen = display.Display()
root = screen.screen().root


def tasks(pid):
    return [f"/proc/{pid}/task/{task}" for task in os.listdir(f"/proc/{pid}/task")]


def processor_time(pid):
    """Seconds on a processor, of all threads that live or have lived: as clock_getcpuclockid names that clock."""
    clock_of_process = (~pid << 3) | 2
    return time.clock_gettime(clock_of_process)


def switches(pid):
    """How often its threads have been put on a processor."""
    total = 0
    for task in tasks(pid):
        with open(f"{task}/status", encoding="ascii") as file:
            total += sum(int(line.split()[1]) for line in file if "ctxt_switches" in line)
    return total


def proportional_memory(pid):
    """MiB."""
    with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as file:
        return next(int(line.split()[1]) for line in file if line.startswith("Pss:")) / 1024


def next_event(process, deadline):
    """The next event of the display; without one the process must live, and the deadline lie ahead."""
    while not screen.pending_events():
        if process.poll() is not None:
            sys.exit(f"window_figures.py: ended with {process.returncode} before its first picture")
        if time.monotonic() > deadline:
            end(process)
            sys.exit(f"window_figures.py: no picture in {PATIENCE:.0f} s")
        select.select([screen], [], [], 1.0)
    return screen.next_event()


def wait_until_painted(process):
    """Until something has been drawn into a window of the right size, which is watched before it is mapped: a quick
    program has drawn all of it by the time that we hear of the mapping."""
    deadline = time.monotonic() + PATIENCE
    watched = set()
    while True:
        event = next_event(process, deadline)
        if event.type == X.CreateNotify and (event.width, event.height) == SIZE:
            event.window.damage_create(damage.DamageReportRawRectangles)
            watched.add(event.window.id)
        elif event.type == screen.extension_event.DamageNotify and event.drawable.id in watched:
            return


def start(name):
    """As on a desktop without assistive programs."""
    environment = {key: value for key, value in os.environ.items() if key != "QT_LINUX_ACCESSIBILITY_ALWAYS_ON"}
    return subprocess.Popen([f"{BUILD}/bin/{name}"], env=environment, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL)


def end(process):
    process.kill()
    process.wait()
    while screen.pending_events():
        screen.next_event()


def one_start(name):
    began = time.perf_counter()
    process = start(name)
    wait_until_painted(process)
    painted = time.perf_counter() - began
    used = processor_time(process.pid)
    time.sleep(SETTLED)
    figures = {"painted_ms": painted * 1000, "processor_ms": used * 1000,
               "memory_mib": proportional_memory(process.pid)}
    end(process)
    return figures


def idle(process):
    before = processor_time(process.pid), switches(process.pid)
    time.sleep(IDLE)
    return {"processor_ms": (processor_time(process.pid) - before[0]) * 1000,
            "switches": switches(process.pid) - before[1]}


def by_figure(runs):
    return {key: [run[key] for run in runs] for key in runs[0]}


def enclosure(*words):
    subprocess.run([f"{BUILD}/bin/krenclosure", *words], check=True, stdout=subprocess.DEVNULL)


def idle_figures():
    figures = {"seconds": IDLE}
    for name, label in (("reference_window", "reference"), ("kestrelraid-emulated", "no_mirror")):
        process = start(name)
        wait_until_painted(process)
        time.sleep(3 * SETTLED)
        figures[label] = idle(process)
        end(process)
    enclosure("new", "box")
    for bay in "01":
        enclosure("disk", f"disk-{bay}", "--size", "1GB")
        enclosure("insert", "box", bay, f"disk-{bay}")
    enclosure("scenario", "box", "raid1")
    enclosure("plug", "box")
    process = start("kestrelraid-emulated")
    wait_until_painted(process)
    time.sleep(6 * SETTLED)  # the reading's designed pauses
    figures["mirror"] = idle(process)
    end(process)
    return figures


def main():
    screen.damage_query_version()
    root.change_attributes(event_mask=X.SubstructureNotifyMask)
    names = ("reference_window", "kestrelraid-emulated")
    for name in names:
        one_start(name)  # warm
    runs = {name: [] for name in names}
    for _ in range(STARTS):
        for name in names:
            runs[name].append(one_start(name))
    report = {"start": {"reference": by_figure(runs[names[0]]), "program": by_figure(runs[names[1]])}}
    if len(sys.argv) <= 3:
        report["idle"] = idle_figures()
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        json.dump(report, file, indent=1)


main()
