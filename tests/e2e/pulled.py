"""Disks and cables are pulled at the worst moment: the window goes on, and no disk loses what was not given up."""

from disks import safety_copies
from kestrel import check, enclosure, run, wait_for
from pulls import AREA, Desk, L, a, b, content

HOLD = 20480  # the sector at which a copy is held
desk = Desk()


def the_cable_is_pulled_before_create_is_confirmed():
    desk.begin("unconfigured")
    before = content()[0]
    desk.ask_for_a_stripe()
    enclosure("unplug", "box")
    desk.answer_all(desk.nothing_there)
    check("disks", content()[0], before)
    desk.end()


def a_disk_is_pulled_before_create_is_confirmed():
    desk.begin("unconfigured")
    before = content()
    desk.ask_for_a_stripe()
    enclosure("pull", "box", "1")
    desk.answer_all(desk.bay_is_empty(1))
    check("disks and safety copies", content(), before)
    desk.end()


def a_disk_is_exchanged_before_create_is_confirmed():
    desk.begin("unconfigured")
    before = content()
    desk.ask_for_a_stripe()
    enclosure("pull", "box", "1")
    enclosure("insert", "box", "1", "c")
    desk.answer_all(lambda: desk.program.text("disk1serialfield") == "SERIAL-c")
    check("disks and safety copies", content(), before)
    desk.end()


def the_cable_is_pulled_before_rebuild_is_confirmed():
    desk.begin("diverged", ["raid_info_conflict"])
    before = content()[0]
    desk.ask("rebuild0to1button", "disk1_to_disk2")
    enclosure("unplug", "box")
    desk.answer_all(desk.nothing_there)
    check("disks", content()[0], before)
    desk.end()


def pulled_before_rebuild_is_confirmed(port, noticed):
    desk.begin("diverged", ["raid_info_conflict"])
    pulled, other = (a, b) if port == 0 else (b, a)
    before = pulled.digest(), other.digest(0, AREA), safety_copies()
    desk.ask("rebuild0to1button", "disk1_to_disk2")
    enclosure("pull", "box", str(port))
    if noticed:
        desk.program.answer(L["hot_swap"])
    desk.answer_all(desk.bay_is_empty(port))
    check("disks and safety copies", (pulled.digest(), other.digest(0, AREA), safety_copies()), before)
    check("mark", other.marked(), False)
    desk.end()


def the_source_is_pulled_at_the_moment_of_the_confirmation():
    pulled_before_rebuild_is_confirmed(0, noticed=False)


def the_target_is_pulled_and_noticed_before_the_confirmation():
    pulled_before_rebuild_is_confirmed(1, noticed=True)


def during_create(pull, settled):
    desk.begin("unconfigured")
    before = [disk.digest(1, AREA - 1) for disk in (a, b)]
    desk.program.choose_row(0)
    desk.pull_during_first_write("confirmbutton", pull)
    check("said", desk.answer_all(settled), [L["raid_create_error"]])
    check("data beyond the first sectors", [disk.digest(1, AREA - 1) for disk in (a, b)], before)
    desk.end(restarted=False)


def disk_1_is_pulled_during_create():
    during_create(lambda: enclosure("pull", "box", "0"), desk.bay_is_empty(0))


def disk_2_is_pulled_during_create():
    during_create(lambda: enclosure("pull", "box", "1"), desk.bay_is_empty(1))


def the_cable_is_pulled_during_create():
    during_create(lambda: enclosure("unplug", "box"), desk.nothing_there)


def during_copy(pull, settled, told):
    """Pulls while a copy is under way."""
    enclosure("fault", "box", "fail", "read", "--port", "0", "--lba", str(HOLD))
    enclosure("rate", "box", "unlimited")
    desk.begin("rebuild")
    wait_for("progress", lambda: desk.program.text("percentagefield") not in (None, "", "0.0%"))
    source = a.digest(0, AREA)
    pull()
    check("said", desk.answer_all(settled), [L[key] for key in told])
    check("the source", a.digest(0, AREA), source)
    check("what was copied", b.digest(0, HOLD), a.digest(0, HOLD))
    desk.end()


def the_source_is_pulled_during_the_copy():
    during_copy(lambda: enclosure("pull", "box", "0"), desk.bay_is_empty(0), ["hot_swap", "raid1_degrade_mode"])


def the_target_is_pulled_during_the_copy():
    during_copy(lambda: enclosure("pull", "box", "1"), desk.bay_is_empty(1), ["hot_swap", "raid1_degrade_mode"])


def the_cable_is_pulled_during_the_copy():
    during_copy(lambda: enclosure("unplug", "box"), desk.nothing_there, [])


run(desk.set_up, the_cable_is_pulled_before_create_is_confirmed, a_disk_is_pulled_before_create_is_confirmed,
    a_disk_is_exchanged_before_create_is_confirmed, the_cable_is_pulled_before_rebuild_is_confirmed,
    the_source_is_pulled_at_the_moment_of_the_confirmation,
    the_target_is_pulled_and_noticed_before_the_confirmation,
    disk_1_is_pulled_during_create, disk_2_is_pulled_during_create, the_cable_is_pulled_during_create,
    the_source_is_pulled_during_the_copy, the_target_is_pulled_during_the_copy,
    the_cable_is_pulled_during_the_copy)
