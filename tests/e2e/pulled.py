"""Disks and cables are pulled at the worst moment: the window goes on, and no disk loses what was not given up."""

from disks import Disk, safety_copies
from kestrel import Failure, Program, check, description, enclosure, enclosures, run, texts, wait_for
from pulse import Pulse

L = texts()
SECTORS = 65536  # 32 MiB
AREA = SECTORS - 16
HOLD = 20480  # the sector at which a copy is held
HANG = 5.0  # seconds
a, b, c = (Disk(name) for name in "abc")
program = pulse = None


def put_in_place():
    """Disks a and b in their bays, each with content of its own; the enclosure is not plugged in."""
    box = enclosures()["box"]
    if box["plugged"]:
        enclosure("unplug", "box")
    for bay, disk in enumerate((a, b)):
        there = box["bays"][bay]
        if there and there["disk"] != disk.name:
            enclosure("pull", "box", str(bay))
        if not there or there["disk"] != disk.name:
            enclosure("insert", "box", str(bay), disk.name)
        for first in range(0, AREA - 64, 8192):
            disk.write(first, bytes([bay + 1]) * 512 * 64)


def begin(scenario, alerts=()):
    """The window with a pair of disks in a state, freshly plugged in."""
    global program, pulse
    put_in_place()
    enclosure("scenario", "box", scenario)
    enclosure("plug", "box")
    program = Program()
    for alert in alerts:
        program.answer(L[alert])
    wait_for("the reading", lambda: program.text("disk1modelfield") and not program.busy())
    pulse = Pulse(program.process.pid).start()


def agreed(restarted):
    """The window shows what is there. A chip not restarted since records were written does not know of them."""
    if enclosures()["box"]["plugged"]:
        program.agrees_on_disks("box")
        if restarted:
            program.agrees("box", L)
    return True


def end(restarted=True):
    """The window comes to show what is there, answered all the time and ends as it should."""
    def settled():
        try:
            return agreed(restarted)
        except Failure:
            return False

    try:
        answer_all(settled)  # a pulled disk may be noticed in two ways at once
    except Failure:
        agreed(restarted)
        raise
    pulse.stop()
    if pulse.hangs or pulse.longest() > HANG:
        raise Failure(f"the window hung for {pulse.longest():.1f} s")
    check("status", program.end()[0], 0)
    enclosure("fault", "box", "clear")


def answer_all(until):
    """Confirms whatever is asked or told until the condition holds and no panel is left; what they said."""
    said = []

    def look():
        panel = program.panel()
        if panel:
            said.append(description(panel))
            program.answer(said[-1])
            return False
        return not program.busy() and until()

    wait_for("the end of the messages", look, 120)
    return said


def nothing_there():
    return program.says(L["ui_no_enclosure"])


def bay_is_empty(port):
    return lambda: program.text(f"disk{port}modelfield") == "" and program.text(f"disk{1 - port}modelfield")


def ask_for_a_stripe():
    program.choose_row(0)
    wait_for("the create button", lambda: program.enabled("confirmbutton"))
    program.press("confirmbutton")
    program.await_panel(L["all_data_lost"])


def ask_for_a_rebuild():
    wait_for("the rebuild button", lambda: program.enabled("rebuild0to1button"))
    program.press("rebuild0to1button")
    program.await_panel(L["disk1_to_disk2"])


def content():
    return [disk.digest() for disk in (a, b, c)], safety_copies()


def the_desk():
    enclosure("new", "box", "--usb", "--serial", "ABC123", "--restart-delay", "200")
    for disk in (a, b, c):
        enclosure("disk", disk.name, "--size", str(SECTORS), "--serial", f"SERIAL-{disk.name}")


def the_cable_is_pulled_before_create_is_confirmed():
    begin("unconfigured")
    before = content()[0]
    ask_for_a_stripe()
    enclosure("unplug", "box")
    answer_all(nothing_there)
    check("disks", content()[0], before)
    end()


def a_disk_is_pulled_before_create_is_confirmed():
    begin("unconfigured")
    before = content()
    ask_for_a_stripe()
    enclosure("pull", "box", "1")
    answer_all(bay_is_empty(1))
    check("disks and safety copies", content(), before)
    end()


def a_disk_is_exchanged_before_create_is_confirmed():
    begin("unconfigured")
    before = content()
    ask_for_a_stripe()
    enclosure("pull", "box", "1")
    enclosure("insert", "box", "1", "c")
    answer_all(lambda: program.text("disk1serialfield") == "SERIAL-c")
    check("disks and safety copies", content(), before)
    end()


def the_cable_is_pulled_before_rebuild_is_confirmed():
    begin("diverged", ["raid_info_conflict"])
    before = content()[0]
    ask_for_a_rebuild()
    enclosure("unplug", "box")
    answer_all(nothing_there)
    check("disks", content()[0], before)
    end()


def pulled_before_rebuild_is_confirmed(port, noticed):
    begin("diverged", ["raid_info_conflict"])
    pulled, other = (a, b) if port == 0 else (b, a)
    before = pulled.digest(), other.digest(0, AREA), safety_copies()
    ask_for_a_rebuild()
    enclosure("pull", "box", str(port))
    if noticed:
        program.answer(L["hot_swap"])
    answer_all(bay_is_empty(port))
    check("disks and safety copies", (pulled.digest(), other.digest(0, AREA), safety_copies()), before)
    check("mark", other.marked(), False)
    end()


def the_source_is_pulled_at_the_moment_of_the_confirmation():
    pulled_before_rebuild_is_confirmed(0, noticed=False)


def the_target_is_pulled_and_noticed_before_the_confirmation():
    pulled_before_rebuild_is_confirmed(1, noticed=True)


def during_create(pull, settled):
    """Pulls while the first write of a create waits for its answer."""
    begin("unconfigured")
    enclosure("fault", "box", "delay", "write", "--port", "0", "--lba", "0", "--delay", "3000")
    before = [disk.digest(1, AREA - 1) for disk in (a, b)]
    ask_for_a_stripe()
    program.answer(L["all_data_lost"])
    wait_for("the first write", lambda: a.read(0, 1) == bytes(512))
    pull()
    check("said", answer_all(settled), [L["raid_create_error"]])
    check("data beyond the first sectors", [disk.digest(1, AREA - 1) for disk in (a, b)], before)
    end(restarted=False)


def disk_1_is_pulled_during_create():
    during_create(lambda: enclosure("pull", "box", "0"), bay_is_empty(0))


def disk_2_is_pulled_during_create():
    during_create(lambda: enclosure("pull", "box", "1"), bay_is_empty(1))


def the_cable_is_pulled_during_create():
    during_create(lambda: enclosure("unplug", "box"), nothing_there)


def during_copy(pull, settled, told):
    """Pulls while a copy is under way."""
    enclosure("fault", "box", "fail", "read", "--port", "0", "--lba", str(HOLD))
    enclosure("rate", "box", "unlimited")
    begin("rebuild")
    wait_for("progress", lambda: program.text("percentagefield") not in (None, "", "0.0%"))
    source = a.digest(0, AREA)
    pull()
    check("said", answer_all(settled), [L[key] for key in told])
    check("the source", a.digest(0, AREA), source)
    check("what was copied", b.digest(0, HOLD), a.digest(0, HOLD))
    end()


def the_source_is_pulled_during_the_copy():
    during_copy(lambda: enclosure("pull", "box", "0"), bay_is_empty(0), ["hot_swap", "raid1_degrade_mode"])


def the_target_is_pulled_during_the_copy():
    during_copy(lambda: enclosure("pull", "box", "1"), bay_is_empty(1), ["hot_swap", "raid1_degrade_mode"])


def the_cable_is_pulled_during_the_copy():
    during_copy(lambda: enclosure("unplug", "box"), nothing_there, [])


run(the_desk, the_cable_is_pulled_before_create_is_confirmed, a_disk_is_pulled_before_create_is_confirmed,
    a_disk_is_exchanged_before_create_is_confirmed, the_cable_is_pulled_before_rebuild_is_confirmed,
    the_source_is_pulled_at_the_moment_of_the_confirmation,
    the_target_is_pulled_and_noticed_before_the_confirmation,
    disk_1_is_pulled_during_create, disk_2_is_pulled_during_create, the_cable_is_pulled_during_create,
    the_source_is_pulled_during_the_copy, the_target_is_pulled_during_the_copy,
    the_cable_is_pulled_during_the_copy)
