"""The window in a storm, at real speed: enclosures and disks come and go while it is clicked about.

storm.py BUILD, with KESTREL_STORM_SECONDS (300) and KESTREL_STORM_SEED. What the process takes of the
machine may not grow: the second half is held against the first.
"""

import os
import random
import time

from kestrel import Failure, Program, check, enclosure, run, wait_for
from pulse import Pulse

SECONDS = int(os.environ.get("KESTREL_STORM_SECONDS", "300"))
SEED = int(os.environ.get("KESTREL_STORM_SEED", random.SystemRandom().randrange(2**32)))
HANG = 5.0  # seconds
BOXES = ("one", "two", "three")
DISKS = "abcdefgh"
BUTTONS = ("confirmbutton", "clearconfigbutton", "cleardisk0button", "cleardisk1button", "rebuild0to1button",
           "rebuild1to0button", "warmbootbutton", "refreshbutton", "showdiskguibutton", "mainguibutton")
# What may come and go: a thread or two, a descriptor for each, and pictures that were drawn once.
ALLOWED = {"descriptors": 5, "threads": 3, "KiB of memory": 8192}
chance = random.Random(SEED)
program = pulse = None


def take_figures():
    folder = f"/proc/{program.process.pid}"
    with open(f"{folder}/status", encoding="ascii") as lines:
        status = dict(line.split(":", 1) for line in lines)
    return {"descriptors": len(os.listdir(f"{folder}/fd")),
            "threads": int(status["Threads"]),
            "KiB of memory": int(status["VmRSS"].split()[0])}


def try_enclosure(*words):
    try:
        enclosure(*words)
    except Failure:
        pass  # it is there already, or empty


def hands():
    box, bay = chance.choice(BOXES), chance.choice("01")
    what = chance.choice(("plug", "plug", "plug", "unplug", "pull", "insert", "insert", "insert", "warmboot",
                          "power-cut"))
    if what == "insert":
        try_enclosure("insert", box, bay, chance.choice(DISKS))
    elif what == "pull":
        try_enclosure("pull", box, bay)
    else:
        try_enclosure(what, box)


def answer_whatever_is_asked():
    panel = program.panel()
    if panel:
        button = chance.choice(("panel_default_button", "panel_second_button"))
        for outlet in (button, "panel_default_button"):
            if program.find(outlet):
                program.press(outlet)
                return


def user():
    answer_whatever_is_asked()
    outlet = chance.choice(BUTTONS)
    if not program.panel() and program.enabled(outlet):
        program.press(outlet)


def alive():
    if program.process.poll() is not None:
        raise Failure(f"ended with {program.process.returncode}: {program.process.stderr.read()}")


def the_desk_is_laid():
    global program, pulse
    print(f"KESTREL_STORM_SECONDS={SECONDS} KESTREL_STORM_SEED={SEED}", flush=True)
    for disk in DISKS:
        enclosure("disk", disk, "--size", "65536", "--serial", f"SERIAL-{disk}")
    for index, box in enumerate(BOXES):
        enclosure("new", box, "--usb", "--restart-delay", "200")
        enclosure("insert", box, "0", DISKS[2 * index])
        enclosure("insert", box, "1", DISKS[2 * index + 1])
        enclosure("scenario", box, "raid1")
        enclosure("plug", box)
    program = Program()
    wait_for("the reading", lambda: program.text("disk1modelfield") and not program.busy())
    pulse = Pulse(program.process.pid).start()


def it_storms():
    samples = []
    end = time.monotonic() + SECONDS
    while time.monotonic() < end:
        alive()
        chance.choice((hands, user, user))()
        samples.append(take_figures())
    middle = len(samples) // 2
    print(f"{len(samples)} steps")
    for what, allowed in ALLOWED.items():
        first, second = (max(sample[what] for sample in half)
                         for half in (samples[:middle], samples[middle:]))
        print(f"{what}: first half {first} at most, second half {second}")
        if second > first + allowed:
            raise Failure(f"{what} grow")


def the_window_is_there_afterwards():
    def quiet():
        answer_whatever_is_asked()
        return not program.panel() and not program.busy()

    wait_for("the end of the messages", quiet, 120)
    pulse.stop()
    print(pulse.report())
    if pulse.hangs or pulse.longest() > HANG:
        raise Failure(f"the window hung for {pulse.longest():.1f} s")
    check("status", program.end()[0], 0)


run(the_desk_is_laid, it_storms, the_window_is_there_afterwards)
