"""An enclosure with two disks whose parts are pulled at the worst moment, and the window that shows it."""

from disks import Disk, safety_copies
from kestrel import Failure, Program, check, description, enclosure, enclosures, texts, wait_for
from pulse import Pulse

L = texts()
SECTORS = 65536  # 32 MiB
AREA = SECTORS - 16
HANG = 5.0  # seconds
DELAY = "4000"  # milliseconds that a held write takes; after 5000 it would count as unanswered
a, b, c = (Disk(name) for name in "abc")


class Desk:
    """One enclosure, three disks, and one window at a time."""

    def __init__(self):
        self.program = self.pulse = None

    def set_up(self, restart_delay=200):
        """`restart_delay`: milliseconds that a restarting enclosure is away."""
        enclosure("new", "box", "--usb", "--serial", "ABC123", "--restart-delay", str(restart_delay))
        for disk in (a, b, c):
            enclosure("disk", disk.name, "--size", str(SECTORS), "--serial", f"SERIAL-{disk.name}")

    def put_in_place(self):
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

    def begin(self, scenario, alerts=()):
        """The window with a pair of disks in a state, freshly plugged in."""
        self.put_in_place()
        enclosure("scenario", "box", scenario)
        enclosure("plug", "box")
        self.program = Program()
        for alert in alerts:
            self.program.answer(L[alert])
        wait_for("the reading", lambda: self.program.text("disk1modelfield") and not self.program.busy())
        self.pulse = Pulse(self.program.process.pid).start()

    def agreed(self, restarted):
        """The window shows what is there. A chip not restarted since records were written does not know of them."""
        if enclosures()["box"]["plugged"]:
            self.program.agrees_on_disks("box")
            if restarted:
                self.program.agrees("box", L)
        return True

    def end(self, restarted=True):
        """The window comes to show what is there, answered all the time and ends as it should."""
        def settled():
            try:
                return self.agreed(restarted)
            except Failure:
                return False

        try:
            self.answer_all(settled)  # a pulled disk may be noticed in two ways at once
        except Failure:
            self.agreed(restarted)
            raise
        self.pulse.stop()
        if self.pulse.hangs or self.pulse.longest() > HANG:
            raise Failure(f"the window hung for {self.pulse.longest():.1f} s")
        check("status", self.program.end()[0], 0)
        enclosure("fault", "box", "clear")

    def answer_all(self, until):
        """Confirms whatever is asked or told until the condition holds and no panel is left; what they said."""
        said = []

        def look():
            panel = self.program.panel()
            if panel:
                said.append(description(panel))
                self.program.answer(said[-1])
                return False
            return not self.program.busy() and until()

        wait_for("the end of the messages", look, 120)
        return said

    def nothing_there(self):
        return self.program.says(L["ui_no_enclosure"])

    def bay_is_empty(self, port):
        return lambda: (self.program.text(f"disk{port}modelfield") == "" and
                        self.program.text(f"disk{1 - port}modelfield"))

    def ask_for_a_stripe(self):
        self.program.choose_row(0)
        self.ask("confirmbutton", "all_data_lost")

    def pull_during_first_write(self, button, pull):
        """Begins a change and pulls while it writes disk 1's first sector; till then each write is held for a while."""
        enclosure("fault", "box", "delay", "write", "--delay", DELAY)
        self.ask(button, "all_data_lost")
        self.program.answer(L["all_data_lost"])
        wait_for("the first write", lambda: a.read(0, 1) == bytes(512))
        pull()
        enclosure("fault", "box", "clear")

    def press(self, button):
        """Presses a button as soon as it is enabled."""
        wait_for(f"the {button}", lambda: self.program.enabled(button))
        self.program.press(button)

    def ask(self, button, question):
        """Presses a button as soon as it is enabled, and leaves its question open."""
        self.press(button)
        self.program.await_panel(L[question])


def content():
    return [disk.digest() for disk in (a, b, c)], safety_copies()
