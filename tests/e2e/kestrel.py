"""Drives the program as a person would: reads and presses what AT-SPI shows of its window."""

import json
import os
import re
import subprocess
import sys
import tempfile
import time
from xml.etree import ElementTree

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

BUILD = sys.argv[1]
SOURCE = os.path.join(os.path.dirname(__file__), "..", "..")
PICTURES = os.path.join(SOURCE, "build", "pictures")


# Array kinds as krenclosure names them, and the window's words for them.
MODES = {"none": "not_config", "RAID 0": "raid_0", "RAID 1": "raid_1", "span": "span"}


class Failure(Exception):
    pass


def texts(language="en"):
    """The window's words, by key."""
    table = os.path.join(SOURCE, "app", "translations", f"kestrelraid_{language}.ts")
    return {message.get("id"): message.findtext("translation")
            for message in ElementTree.parse(table).iter("message")}


def enclosure(*words):
    """Runs krenclosure; what it prints."""
    run = subprocess.run([f"{BUILD}/bin/krenclosure", *words], capture_output=True, text=True, timeout=30)
    if run.returncode != 0:
        raise Failure(f"krenclosure {' '.join(words)}: {run.stderr.strip()}")
    return run.stdout


def enclosures():
    """What krenclosure says of them, by name."""
    return {one["name"]: one for one in json.loads(enclosure("list", "--json"))["enclosures"]}


def wait_for(what, condition, seconds=60):
    """Serves events until the condition holds; the value it then has."""
    loop = GLib.MainLoop()
    found = []
    error = []
    end = time.monotonic() + seconds

    def look(*_):
        try:
            value = condition()
        except (GLib.Error, AttributeError, TypeError) as lost:  # the object went away meanwhile
            value = None
            error[:] = [lost]
        if value:
            found[:] = [value]
        if value or time.monotonic() > end:
            loop.quit()
            return False
        return True

    if look():
        GLib.timeout_add(100, look)
        loop.run()
    if not found:
        raise Failure(f"waited {seconds} s in vain for: {what} {error or ''}")
    return found[0]


def descend(node):
    yield node
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child is not None:
            yield from descend(child)


def description(node):
    """What a screen reader says of it beside its name; the program for tests appends its outlet's name."""
    return re.sub(r" ?\[\w+\]$", "", node.get_description())


_no_devices = tempfile.TemporaryDirectory()
os.mkdir(os.path.join(_no_devices.name, "sys"))


def without_devices(environment):
    """On a machine that has none: for the program that looks for real ones."""
    return dict(environment, LD_PRELOAD="libumockdev-preload.so.0", UMOCKDEV_DIR=_no_devices.name)


class Program:
    """A running kestrelraid."""

    def __init__(self, language="C.UTF-8", scale=None, name="kestrelraid-emulated"):
        environment = dict(os.environ, LANG=language, LC_ALL=language, LANGUAGE=language.split("_")[0])
        # Whatever is installed, no test reaches for another library than the bundled one.
        if name == "kestrelraid-emulated":
            environment["LD_LIBRARY_PATH"] = f"{BUILD}/lib/emulated"
        else:
            environment = without_devices(dict(environment, LD_LIBRARY_PATH=f"{BUILD}/lib"))
        self.scale = scale or 1
        if scale:
            environment["QT_SCALE_FACTOR"] = str(scale)
        self.process = subprocess.Popen(
            [f"{BUILD}/bin/{name}"], env=environment,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.application = wait_for("the program on the accessibility bus", self._find)

    def _find(self):
        if self.process.poll() is not None:
            raise Failure(f"ended at start with {self.process.returncode}: {self.process.stderr.read()}")
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(i)
            if application and application.get_process_id() == self.process.pid:
                return application
        return None

    def find(self, outlet):
        """The widget of a member of the window, or None."""
        for node in descend(self.application):
            if node.get_description().endswith(f"[{outlet}]"):
                return node
        return None

    def widget(self, outlet):
        return wait_for(f"the widget {outlet}", lambda: self.find(outlet))

    def text(self, outlet):
        """What it shows: a label's words, a combo box's entry."""
        node = self.find(outlet)
        if node is None:
            return None
        if node.get_role() == Atspi.Role.COMBO_BOX:
            editors = [c for c in descend(node) if c.get_role() == Atspi.Role.TEXT]
            if editors:
                return Atspi.Text.get_text(editors[0], 0, -1)
        return node.get_name()

    def showing(self, outlet):
        node = self.find(outlet)
        return node is not None and node.get_state_set().contains(Atspi.StateType.SHOWING)

    def enabled(self, outlet):
        node = self.find(outlet)
        return node is not None and node.get_state_set().contains(Atspi.StateType.ENABLED)

    def focus(self):
        """The outlet that has the keyboard; None for a list's row, or anything else without a name."""
        for node in descend(self.application):
            if node.get_state_set().contains(Atspi.StateType.FOCUSED):
                name = re.search(r"\[(\w+)\]$", node.get_description())
                if name:
                    return name.group(1)
                if node.get_role() == Atspi.Role.PAGE_TAB_LIST:
                    return "tabs"
        return None

    def await_focus(self, outlet):
        wait_for(f"the focus on {outlet}, not on {self.focus()}", lambda: self.focus() == outlet)

    def tab_to(self, outlet):
        """Goes from control to control, as somebody does who has no mouse."""
        for _ in range(20):
            before = self.focus()
            if before == outlet:
                return
            self.key("Tab")
            wait_for(f"the focus to leave {before}", lambda: self.focus() != before)
        raise Failure(f"the Tab key does not lead to {outlet}")

    def press(self, outlet):
        Atspi.Action.do_action(self.widget(outlet), 0)

    def await_text(self, outlet, text, seconds=60):
        try:
            wait_for(f"{outlet} = '{text}'", lambda: self.text(outlet) == text, seconds)
        except Failure:
            raise Failure(f"{outlet} shows '{self.text(outlet)}', expected '{text}'") from None

    def says(self, text):
        """Whether a label with this text is on show."""
        return any(node.get_name() == text and node.get_state_set().contains(Atspi.StateType.SHOWING)
                   for node in descend(self.application))

    def busy(self):
        return self.showing("workingindicator")

    def tree(self):
        """The device tree's rows, in their order."""
        rows = [node for node in descend(self.widget("tree")) if node.get_role() == Atspi.Role.TABLE_CELL]
        return [row.get_name() for row in rows]

    def entries(self):
        """The controller list."""
        box = self.find("controllerselectbox")
        return [n.get_name() for n in descend(box) if n.get_role() == Atspi.Role.LIST_ITEM] if box else []

    def list_is_open(self):
        return any(node.get_role() == Atspi.Role.LIST and node.get_state_set().contains(Atspi.StateType.SHOWING)
                   for node in descend(self.widget("controllerselectbox")))

    def panel(self):
        """The panel in front, or None. Its message is its description."""
        panels = [node for node in descend(self.application)
                  if node.get_role() == Atspi.Role.DIALOG and
                  node.get_state_set().contains(Atspi.StateType.SHOWING)]
        return panels[-1] if panels else None

    def asks(self, message):
        """The panel in front when it has this message, or None."""
        panel = self.panel()
        return panel if panel and description(panel) == message else None

    def await_panel(self, message, seconds=60):
        return wait_for(f"the panel '{message}'", lambda: self.asks(message), seconds)

    def answer(self, message, seconds=60, button="panel_default_button", picture=None):
        """Waits for the panel with this message and presses one of its buttons."""
        panel = self.await_panel(message, seconds)
        if picture:
            self.picture(picture)
        for node in descend(panel):
            if node.get_description().endswith(f"[{button}]"):
                Atspi.Action.do_action(node, 0)
        wait_for(f"the panel '{message}' to close", lambda: not self.asks(message))

    def plan(self, words):
        """What the panel in front says of either disk, as a screen reader hears it."""
        names = [node.get_name() or "" for node in descend(self.panel())]
        return [next((name for name in names if name.startswith(words[bay] + ": ")), None)
                for bay in ("disk_1", "disk_2")]

    def choose_row(self, row):
        """Chooses the array to create: 0 RAID 0, 1 RAID 1, 2 span, 3 none."""
        def button():
            return [node for node in descend(self.widget("raidconfigradiobutton"))
                    if node.get_role() == Atspi.Role.RADIO_BUTTON][row]

        Atspi.Action.do_action(wait_for("the rows", button), 0)
        wait_for(f"row {row} to be chosen",
                 lambda: button().get_state_set().contains(Atspi.StateType.CHECKED))

    def click(self, outlet):
        """Clicks with the mouse where the widget is; what lies there gets it."""
        node = self.find(outlet)
        place = node and Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
        if place and place.width > 0:
            x, y = (round((at + length / 2) * self.scale)
                    for at, length in ((place.x, place.width), (place.y, place.height)))
            subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True, timeout=30)

    def key(self, name):
        """Presses a key, as the window that has the keyboard gets it."""
        subprocess.run(["xdotool", "key", name], check=True, timeout=30)

    def layout(self, name):
        """Changes the keyboard's layout."""
        subprocess.run(["setxkbmap", name], check=True, timeout=30)

    def agrees(self, name, words):
        """What the window shows of the selected enclosure is what krenclosure says of it."""
        self.agrees_on_disks(name)
        self._agrees_on_array(enclosures()[name], words)

    def agrees_on_disks(self, name):
        for port, bay in enumerate(enclosures()[name]["bays"]):
            present = bool(bay and bay["present"])
            check(f"model {port}", self.text(f"disk{port}modelfield"), bay["model"] if present else "")
            check(f"serial {port}", self.text(f"disk{port}serialfield"), bay["serial"] if present else "")
            size = f"{bay['sectors'] * 512 // 10**9} GB" if present else ""
            check(f"size {port}", self.text(f"disk{port}sizefield"), size)

    def _agrees_on_array(self, one, words):
        state, mode = one["array"]["state"], words[MODES[one["array"]["mode"]]]
        whole = state in ("in order", "copying")
        check("array", self.text("raidmodelabel"),
              (mode if whole else "") + (words["rebuilding"] if state == "copying" else ""))
        shown = [self.text(f"disk{port}modefield") for port in (0, 1) if one["bays"][port]]
        if state == "copying":
            source = one["copy"]["source"]
            wanted = [mode + words["rebuild_source" if port == source else "rebuild_target"] for port in (0, 1)]
            check("modes", shown, wanted)
        elif state == "degraded":
            check("a degraded member", words["raid_1"] + words["degrade"] in shown, True)
        elif state == "broken":
            check("a broken member", any(text.endswith(words["broken"]) for text in shown), True)
        else:
            check("modes", set(shown), {mode + (words["degrade"] if state == "diverged" else "")})

    def picture(self, name):
        """Keeps a picture of the window."""
        os.makedirs(PICTURES, exist_ok=True)
        place = Atspi.Component.get_extents(self.widget("mainview"), Atspi.CoordType.SCREEN)
        x, y, width, height = (round(length * self.scale)
                               for length in (place.x, place.y, place.width, place.height))
        subprocess.run(["import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage",
                        f"{PICTURES}/{name}.png"], check=True, timeout=30)

    def end(self, outlet="closebutton"):
        """Leaves by the window's own button; the exit status, standard output and error."""
        self.press(outlet)
        out, err = self.process.communicate(timeout=30)
        return self.process.returncode, out, err

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.communicate()


def check(what, actual, expected):
    if actual != expected:
        raise Failure(f"{what}: {actual!r}, expected {expected!r}")


def run(*steps):
    """Runs the steps in order and says so; ends with 1 at the first that fails."""
    for step in steps:
        start = time.monotonic()
        try:
            step()
        except Failure as failure:
            print(f"FAILED {step.__name__}: {failure}")
            sys.exit(1)
        print(f"ok {step.__name__} ({time.monotonic() - start:.1f} s)", flush=True)
