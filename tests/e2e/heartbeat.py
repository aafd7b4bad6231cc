"""The window answers at once while a large mirror is created, copied, deleted and read, and is clicked about."""

import itertools
import json
import os
import sys

from disks import Disk
from kestrel import Failure, Program, check, enclosure, enclosures, run, texts, wait_for
from pulse import Pulse

L = texts()
HANG = 2.0  # seconds; far beyond what a person takes for an answer, and beyond any busy machine
a, b, c = (Disk(name) for name in "abc")
program = pulse = None
around = itertools.cycle(["showdiskguibutton", "mainguibutton", "controllerselectbox", "rebuild1to0button"])


def clicking(what, condition, seconds=120):
    """Waits for the condition and clicks about meanwhile."""
    def look():
        program.click(next(around))
        return condition()

    return wait_for(what, look, seconds)


def change(button, message):
    """Presses, confirms and waits for the bridge to return."""
    former = enclosures()["box"]["handle"]
    clicking(f"the button {button}", lambda: program.enabled(button))
    program.press(button)
    program.answer(message)
    clicking("the bridge to return", lambda: enclosures()["box"]["handle"] not in (None, former))


def shows(outlet, text):
    clicking(f"{outlet} = '{text}'", lambda: program.text(outlet) == text)


def a_pair_of_large_disks():
    global program, pulse
    enclosure("new", "box", "--usb", "--serial", "ABC123")
    for disk in (a, b, c):
        enclosure("disk", disk.name, "--size", "4GB", "--serial", f"SERIAL-{disk.name}")
    for first in range(0, a.sectors() - 4096, a.sectors() // 64):
        a.write(first, os.urandom(1 << 20))
    enclosure("insert", "box", "0", "a")
    enclosure("insert", "box", "1", "b")
    enclosure("plug", "box")
    program = Program()
    program.await_text("disk1modefield", L["not_config"])
    pulse = Pulse(program.process.pid).start()


def a_mirror_is_created():
    program.choose_row(1)
    change("confirmbutton", L["all_data_lost"])
    shows("raidmodelabel", L["raid_1"])


def a_new_disk_takes_its_place():
    enclosure("pull", "box", "1")
    program.answer(L["hot_swap"])
    program.answer(L["raid1_degrade_mode"])
    enclosure("insert", "box", "1", "c")
    for alert in ("hot_swap", "raid1_degrade_mode", "raid_info_conflict"):
        program.answer(L[alert])


def it_is_copied():
    enclosure("rate", "box", "300")
    change("rebuild0to1button", L["disk1_to_disk2"])
    shows("raidmodelabel", L["raid_1"] + L["rebuilding"])
    clicking("the end", lambda: program.asks(L["rebuild_finished"]))
    program.answer(L["rebuild_finished"])
    shows("raidmodelabel", L["raid_1"])
    area = a.sectors() - 16
    check("the copy", c.digest(0, area), a.digest(0, area))


def it_is_read_again_and_again():
    for _ in range(3):
        clicking("rest", lambda: not program.busy())
        program.press("refresh_button")
        clicking("the end of the reading", lambda: program.text("raidmodelabel") == L["raid_1"])


def it_is_deleted():
    change("clearconfigbutton", L["all_data_lost"])
    shows("disk1modefield", L["not_config"])


def the_window_was_there_all_the_time():
    pulse.stop()
    print(pulse.report(), flush=True)
    if len(sys.argv) > 2:  # where the benchmarks want the figures
        with open(sys.argv[2], "w", encoding="utf-8") as file:
            json.dump({"answers": pulse.answers, "served": pulse.served, "machine": pulse.machine}, file)
    if pulse.hangs or pulse.longest() > HANG:
        raise Failure(f"the window hung for {pulse.longest():.1f} s")
    check("status", program.end()[0], 0)


run(a_pair_of_large_disks, a_mirror_is_created, a_new_disk_takes_its_place, it_is_copied,
    it_is_read_again_and_again, it_is_deleted, the_window_was_there_all_the_time)
