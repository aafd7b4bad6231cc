"""The window in a storm, at real speed: enclosures and disks come and go while it is clicked about.

storm.py BUILD [SECONDS [SEED]]. What the process takes of the machine may not grow: of the longest time
that one process lasted the second half is held against the first.
"""

import os
import random
import sys
import time

from kestrel import Atspi, Failure, GLib, Program, check, enclosure, run, wait_for
from pulse import Pulse

SECONDS = int(sys.argv[2]) if len(sys.argv) > 2 else 300
SEED = int(sys.argv[3]) if len(sys.argv) > 3 else random.SystemRandom().randrange(2**32)
HANG = 5.0  # seconds
BOXES = ("one", "two", "three")
DISKS = "abcdefgh"
BUTTONS = ("confirmbutton", "clearconfigbutton", "cleardisk0button", "cleardisk1button", "rebuild0to1button",
           "rebuild1to0button", "warmbootbutton", "refresh_button", "showdiskguibutton", "mainguibutton")
# What may come and go: a thread or two, a descriptor for each, and pictures that were drawn once.
ALLOWED = {"descriptors": 5, "threads": 3, "KiB of memory": 8192}
chance = random.Random(SEED)
program = pulse = None


def take_figures():
    """One sample, or none when the program is just ending."""
    folder = f"/proc/{program.process.pid}"
    try:
        with open(f"{folder}/status", encoding="ascii") as lines:
            status = dict(line.split(":", 1) for line in lines)
        return [{"descriptors": len(os.listdir(f"{folder}/fd")),
                 "threads": int(status["Threads"]),
                 "KiB of memory": int(status["VmRSS"].split()[0])}]
    except (OSError, KeyError):
        return []


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


def press_if_there(outlet):
    """What is there may go at any moment, and the program with it."""
    try:
        node = program.find(outlet)
        if node and node.get_state_set().contains(Atspi.StateType.ENABLED):
            Atspi.Action.do_action(node, 0)
    except (GLib.Error, AttributeError):
        pass


def answer_whatever_is_asked():
    press_if_there(chance.choice(("panel_default_button", "panel_default_button", "panel_second_button")))


def user():
    answer_whatever_is_asked()
    press_if_there(chance.choice(BUTTONS))


def ended():
    """Whether it has left because a bridge was gone before it could be opened. Any other end fails."""
    status = program.process.poll()
    if status not in (None, 3):
        raise Failure(f"ended with {status}: {program.process.stderr.read()}")
    return status == 3


def quiet():
    answer_whatever_is_asked()
    return not program.panel() and not program.busy()


def the_window_opens():
    global program, pulse
    program = Program()
    wait_for("the reading", quiet, 120)
    pulse = Pulse(program.process.pid).start()


def the_desk_is_laid():
    print(f"storm.py BUILD {SECONDS} {SEED}", flush=True)
    for disk in DISKS:
        enclosure("disk", disk, "--size", "65536", "--serial", f"SERIAL-{disk}")
    for index, box in enumerate(BOXES):
        enclosure("new", box, "--usb", "--restart-delay", "200")
        enclosure("insert", box, "0", DISKS[2 * index])
        enclosure("insert", box, "1", DISKS[2 * index + 1])
        enclosure("scenario", box, "raid1")
        enclosure("plug", box)


def expect_prompt(answers):
    longest = max(answers, default=0.0)
    if longest > HANG:
        raise Failure(f"the window hung for {longest:.1f} s")


def start_again():
    print("left, for a bridge was gone before it could be opened")
    pulse.stop()
    expect_prompt(pulse.answers[:-1])  # the last question came when it had left
    the_window_opens()


def storm_until(end):
    """What one process took at each step, until then or until it left and was started again."""
    samples = []
    while time.monotonic() < end:
        chance.choice((hands, user, user))()
        if ended():
            start_again()
            return samples
        samples += take_figures()
    return samples


def it_storms():
    end = time.monotonic() + SECONDS
    longest = []
    while time.monotonic() < end:
        longest = max(longest, storm_until(end), key=len)
    expect_flat(longest)


def expect_flat(samples):
    middle = len(samples) // 2
    print(f"{len(samples)} steps")
    if middle == 0:
        raise Failure("too few steps for two halves")
    for what, allowed in ALLOWED.items():
        first, second = (max(sample[what] for sample in half)
                         for half in (samples[:middle], samples[middle:]))
        print(f"{what}: first half {first} at most, second half {second}")
        if second > first + allowed:
            raise Failure(f"{what} grow")


def the_window_is_there_afterwards():
    wait_for("the end of the messages", quiet, 120)
    pulse.stop()
    print(pulse.report())
    expect_prompt(pulse.answers)
    check("status", program.end()[0], 0)


run(the_desk_is_laid, the_window_opens, it_storms, the_window_is_there_afterwards)
