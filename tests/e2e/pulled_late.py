"""Disks and cables are pulled while an array is deleted, a disk is wiped, or the enclosure restarts."""

from kestrel import check, description, enclosure, enclosures, run, wait_for
from pulls import AREA, Desk, L, a, b

desk = Desk()


def area():
    """What lies behind the first sectors of both disks."""
    return [disk.digest(64, AREA - 64) for disk in (a, b)]


def during_delete(pull, settled):
    desk.begin("raid0")
    before = area()
    desk.pull_during_first_write("clearconfigbutton", pull)
    said = desk.answer_all(settled)
    check("the error is told", L["raid_delete_error"] in said, True)
    check("data behind the first sectors", area(), before)
    desk.end(restarted=False)


def disk_1_is_pulled_during_delete():
    during_delete(lambda: enclosure("pull", "box", "0"), desk.bay_is_empty(0))


def disk_2_is_pulled_during_delete():
    during_delete(lambda: enclosure("pull", "box", "1"), desk.bay_is_empty(1))


def the_cable_is_pulled_during_delete():
    during_delete(lambda: enclosure("unplug", "box"), desk.nothing_there)


def during_wipe(pull, settled, fails):
    """Pulls while disk 1 is being wiped."""
    desk.begin("diverged", ["raid_info_conflict"])
    before = area(), b.read(0, 64)
    desk.program.key("ctrl+1")
    desk.pull_during_first_write("cleardisk0button", pull)
    if fails:
        desk.program.answer(L["raid_info_delete_error"], 120)
        desk.press("refresh_button")  # a wipe that failed does not read again by itself
    desk.answer_all(settled)
    check("both disks behind the first sectors, and all data of the other", (area(), b.read(0, 64)), before)
    desk.end(restarted=not fails)


def the_disk_is_pulled_during_its_wipe():
    during_wipe(lambda: enclosure("pull", "box", "0"), desk.bay_is_empty(0), fails=True)


def the_other_disk_is_pulled_during_a_wipe():
    during_wipe(lambda: enclosure("pull", "box", "1"), desk.bay_is_empty(1), fails=False)
    check("the wiped disk", a.read(0, 64), bytes(64 * 512))


def the_cable_is_pulled_during_a_wipe():
    during_wipe(lambda: enclosure("unplug", "box"), desk.nothing_there, fails=True)


def during_restart(pull, settled, told):
    """Pulls while the enclosure is away."""
    desk.begin("raid1")
    before = [disk.digest(0, AREA) for disk in (a, b)]
    desk.program.key("alt+2")
    desk.press("warmbootbutton")
    wait_for("the enclosure to leave", lambda: enclosures()["box"]["handle"] is None)
    pull()
    said = desk.answer_all(settled)
    check("said", said, [L[key] for key in told])
    check("the data of both disks", [disk.digest(0, AREA) for disk in (a, b)], before)
    desk.end()


def a_disk_is_pulled_during_the_restart():
    during_restart(lambda: enclosure("pull", "box", "1"), desk.bay_is_empty(1), ["raid1_degrade_mode"])


def the_cable_is_pulled_during_the_restart():
    """Its departure was expected, so the user has to ask; the tips of the buttons say so."""
    def pull():
        enclosure("unplug", "box")
        advice = L["ui_reason_restarting"].replace("%1", L["refresh_button"])
        check("the reason", description(desk.program.find("clearconfigbutton")), advice)
        desk.press("refresh_button")

    during_restart(pull, desk.nothing_there, [])


def the_desk():
    desk.set_up(restart_delay=2000)


run(the_desk, disk_1_is_pulled_during_delete, disk_2_is_pulled_during_delete, the_cable_is_pulled_during_delete,
    the_disk_is_pulled_during_its_wipe, the_other_disk_is_pulled_during_a_wipe, the_cable_is_pulled_during_a_wipe,
    a_disk_is_pulled_during_the_restart, the_cable_is_pulled_during_the_restart)
