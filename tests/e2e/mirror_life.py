"""The life of a mirror: created, used, hurt, healed, deleted; the window and the disks say the same."""

import os

from disks import Disk, records_in, safety_copies
from kestrel import Failure, Program, check, enclosure, enclosures, run, texts, wait_for

L = texts()
SECTORS = 131072  # 64 MiB
LARGER = 150000
AREA = SECTORS - 16  # of a mirror of which the smaller disk has SECTORS
HOLD = 49152  # the sector at which the copy is held: 37.5 % of the area
a, b, c, d = (Disk(name) for name in "abcd")
program = None
changes = 0


def without_stamp(record):
    """A member that runs alone gets a new stamp whenever its enclosure was read; copies hold what was read."""
    return record[:480] + record[496:]


def array():
    return enclosures()["box"]["array"]


def agree():
    program.agrees("box", L)


def change(press, message, picture, plan):
    """Presses, reads the plan, confirms, and waits for the bridge to leave and to come back."""
    global changes
    former = enclosures()["box"]["handle"]
    records = {f"SERIAL-{disk.name}": without_stamp(disk.record()) for disk, _ in plan}
    press()
    program.await_panel(message)
    for said, (disk, fate) in zip(program.plan(L), plan):
        check(f"'{said}' tells what becomes of {disk.name}",
              f"SERIAL-{disk.name}" in said and said.endswith(": " + L[fate]), True)
    program.answer(message, picture=picture)
    wait_for("the bridge to return", lambda: enclosures()["box"]["handle"] not in (None, former))
    changes += 1
    check("safety copies", len(safety_copies()), changes)
    copied = {serial: without_stamp(record) for serial, record in records_in(safety_copies()[-1]).items()}
    check("the records in the safety copy", copied, records)


def create(row, picture, *disks):
    program.choose_row(row)
    wait_for("the create button", lambda: program.enabled("confirmbutton"))
    change(lambda: program.press("confirmbutton"), L["all_data_lost"], picture,
           [(disk, "ui_plan_all_lost") for disk in disks])


def two_new_disks_are_in_no_array():
    global program
    enclosure("new", "box", "--usb", "--serial", "ABC123", "--restart-delay", "200")
    for disk, size in ((a, SECTORS), (b, SECTORS), (c, LARGER), (d, SECTORS)):
        enclosure("disk", disk.name, "--size", str(size), "--serial", f"SERIAL-{disk.name}")
        disk.write(0, os.urandom(64 * 512))
    enclosure("insert", "box", "0", "a")
    enclosure("insert", "box", "1", "b")
    enclosure("plug", "box")
    program = Program()
    program.await_text("disk1modefield", L["not_config"])
    agree()


def what_is_refused_is_not_done():
    before = a.digest(), b.digest(), enclosures()
    program.choose_row(1)
    wait_for("the create button", lambda: program.enabled("confirmbutton"))
    program.press("confirmbutton")
    program.await_panel(L["all_data_lost"])
    program.key("Escape")
    wait_for("the panel to close", lambda: not program.panel())
    agree()
    check("the create button", program.enabled("confirmbutton"), True)
    check("disks and enclosure", (a.digest(), b.digest(), enclosures()), before)
    check("safety copies", safety_copies(), [])


def a_mirror_is_created():
    create(1, "panel-create-mirror", a, b)
    program.await_text("raidmodelabel", L["raid_1"])
    agree()
    check("array", array(), {"mode": "RAID 1", "state": "in order", "sectors": AREA})
    for disk in (a, b):
        check("partition table", disk.read(0, 1), bytes(512))
        check("record", disk.mode(), 2)
    program.picture("life-mirror")


def it_is_used():
    data = os.urandom(8 << 20)
    for disk in (a, b):
        for first in (0, HOLD, AREA - len(data) // 512):
            disk.write(first, data)
    check("the two copies", a.digest(0, AREA), b.digest(0, AREA))


def a_disk_is_pulled():
    enclosure("pull", "box", "1")
    program.answer(L["hot_swap"], picture="panel-hot-swap")
    program.answer(L["raid1_degrade_mode"], picture="panel-degraded")
    program.await_text("disk0modefield", L["raid_1"] + L["degrade"])
    agree()
    check("array", array()["state"], "degraded")


def a_new_disk_offers_one_direction():
    enclosure("insert", "box", "1", "c")
    program.answer(L["hot_swap"])
    program.answer(L["raid1_degrade_mode"])
    program.answer(L["raid_info_conflict"], picture="panel-conflict")
    wait_for("the direction", lambda: program.showing("rebuild0to1button") and
             program.enabled("rebuild0to1button"))
    check("the other direction", program.enabled("rebuild1to0button"), False)
    agree()
    program.picture("life-degraded")


def percentage():
    text = program.text("percentagefield") if program.showing("percentagefield") else ""
    return float(text.rstrip("%")) if text else 0.0


def it_is_copied_to_the_new_disk():
    enclosure("rate", "box", "1")
    enclosure("fault", "box", "fail", "read", "--port", "0", "--lba", str(HOLD))
    source = a.digest(0, AREA)
    change(lambda: program.press("rebuild0to1button"), L["disk1_to_disk2"], "panel-rebuild",
           [(a, "ui_plan_read"), (c, "ui_plan_overwritten")])
    program.await_text("raidmodelabel", L["raid_1"] + L["rebuilding"])
    agree()
    wait_for("progress", lambda: 0 < percentage() < 37)
    enclosure("rate", "box", "unlimited")
    program.await_text("percentagefield", "37.5%")
    check("copy", enclosures()["box"]["copy"],
          {"source": 0, "end": AREA - 1, "current": HOLD - 1, "running": True})
    program.picture("life-rebuilding-37")
    enclosure("fault", "box", "clear")
    program.answer(L["rebuild_finished"], picture="panel-rebuild-finished")
    program.await_text("raidmodelabel", L["raid_1"])
    agree()
    check("array", array(), {"mode": "RAID 1", "state": "in order", "sectors": AREA})
    check("the source", a.digest(0, AREA), source)


def both_disks_are_alike():
    check("records", [disk.mode() for disk in (a, c)], [2, 2])
    check("marks", [disk.marked() for disk in (a, c)], [False, False])
    if a.read(0, AREA) != c.read(0, AREA):
        raise Failure("the copies differ")


def a_deleted_mirror_keeps_its_data():
    before = a.digest(0, AREA), c.digest(0, AREA)
    wait_for("the delete button", lambda: program.enabled("clearconfigbutton"))
    change(lambda: program.press("clearconfigbutton"), L["all_data_lost"], "panel-delete-mirror",
           [(a, "ui_plan_keeps_data"), (c, "ui_plan_keeps_data")])
    program.await_text("disk1modefield", L["not_config"])
    agree()
    check("array", array()["state"], "plain")
    check("data", (a.digest(0, AREA), c.digest(0, AREA)), before)
    check("records", [disk.record() for disk in (a, c)], [bytes(512)] * 2)


def a_span_and_then_a_stripe_are_created():
    create(2, "panel-create-span", a, c)
    program.await_text("raidmodelabel", L["span"])
    agree()
    check("array", array(), {"mode": "span", "state": "in order", "sectors": SECTORS + LARGER - 65568})
    create(0, "panel-create-stripe", a, c)
    program.await_text("raidmodelabel", L["raid_0"])
    agree()
    check("array", array(), {"mode": "RAID 0", "state": "in order", "sectors": 2 * SECTORS - 32})


def a_disk_of_a_broken_pair_is_wiped():
    enclosure("pull", "box", "1")
    enclosure("insert", "box", "1", "d")
    program.press("refresh_button")
    program.answer(L["raid_info_conflict"])
    program.await_text("disk0modefield", L["raid_0"] + L["broken"])
    agree()
    a.write(0, os.urandom(65 * 512))
    beyond, other = a.digest(64, AREA - 64), d.digest()
    wait_for("the wipe button", lambda: program.enabled("cleardisk0button"))
    check("the other wipe button", program.enabled("cleardisk1button"), False)
    change(lambda: program.press("cleardisk0button"), L["all_data_lost"], "panel-wipe",
           [(a, "ui_plan_all_lost"), (d, "ui_plan_untouched")])
    program.await_text("disk0modefield", L["not_config"])
    agree()
    check("its first sectors", a.read(0, 64), bytes(64 * 512))
    check("its record", a.record(), bytes(512))
    check("its other sectors", a.digest(64, AREA - 64), beyond)
    check("the other disk", d.digest(), other)


def the_close_button_ends_with_0():
    check("status", program.end()[0], 0)


run(two_new_disks_are_in_no_array, what_is_refused_is_not_done, a_mirror_is_created, it_is_used,
    a_disk_is_pulled, a_new_disk_offers_one_direction, it_is_copied_to_the_new_disk, both_disks_are_alike,
    a_deleted_mirror_keeps_its_data, a_span_and_then_a_stripe_are_created, a_disk_of_a_broken_pair_is_wiped,
    the_close_button_ends_with_0)
