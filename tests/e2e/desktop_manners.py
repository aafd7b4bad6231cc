"""The window among others: one program per session, drags, notifications, a place in task lists."""

import os
import signal
import subprocess
from xml.sax.saxutils import escape

from kestrel import BUILD, Program, check, enclosure, run, texts, wait_for
from other_parties import Application, Notifications
from windows import OtherWindow, active, icon_widths, in_front, minimised, place, window_of
from gi.repository import Atspi

L = texts()
NAME = "org.kestrelraid.KestrelRaid"
LISTED = "Emulated Kestrel Duo  (S/N: <b>1</b>)"
CRITICAL, NORMAL = 2, 1
program = None
window = None
service = None
other = None


def start():
    global program, window
    program = Program()
    window = wait_for("the window", lambda: window_of(program.process.pid))
    wait_for("the window in front", lambda: active(window))


def start_again(says=""):
    """A second start ends by itself, and says on standard error no more than this."""
    second = subprocess.run([f"{BUILD}/bin/kestrelraid-emulated"], capture_output=True, text=True, timeout=30)
    check("the second start", (second.returncode, second.stdout, second.stderr), (0, "", says))


def await_in_front():
    wait_for("the window in front", lambda: not minimised(window) and active(window) and in_front(window))


def minimise():
    program.press("minimizebutton")
    wait_for("the window to be minimised", lambda: minimised(window))


def cover():
    global other
    other = OtherWindow()
    wait_for("another window in front", lambda: active(other.window))


def mouse(*words):
    subprocess.run(["xdotool", *map(str, words)], check=True, timeout=30)


def middle(outlet):
    on_screen = Atspi.Component.get_extents(program.widget(outlet), Atspi.CoordType.SCREEN)
    return on_screen.x + on_screen.width // 2, on_screen.y + on_screen.height // 2


def pull(x, y, until, tries):
    """Presses the mouse there and moves it until the condition holds; whether it came to that."""
    mouse("mousemove", x, y, "mousedown", 1)
    try:
        for _ in range(tries):
            mouse("mousemove_relative", "--sync", "--", 7, -7)
            program.busy()  # the program has come to its events since
            if until():
                return True
        return False
    finally:
        mouse("mouseup", 1)


def follows(x, y, tries=100):
    before = place(window)
    return pull(x, y, lambda: place(window) != before, tries)


def shown(index, message, urgency):
    """The notification with this message is what the panel says, and where."""
    one = wait_for("a notification", lambda: service.shown[index:])[0]
    check("its words", (one["program"], one["title"], one["actions"]),
          ("Kestrel RAID", L["attention"], ["default", L["ui_open_window"]]))
    listed = escape(LISTED) if "body-markup" in service.capabilities else LISTED
    check("its text", one["text"], f"{message}\n{listed}")
    check("its place", (one["icon"], one["hints"]["desktop-entry"], one["replaces"]), (NAME, NAME, 0))
    check("its urgency", one["hints"]["urgency"], urgency)


def answered(message, count):
    program.answer(message)
    wait_for("the notification to be closed", lambda: service.closed == list(range(1, count + 1)))


def a_second_start_hands_the_launchers_token_on():
    first = Application()
    environment = dict(os.environ, DESKTOP_STARTUP_ID="a token")
    second = subprocess.Popen([f"{BUILD}/bin/kestrelraid-emulated"], env=environment)
    try:
        wait_for("the second start to end", lambda: second.poll() is not None)
        check("status", second.returncode, 0)
    finally:
        second.kill()
        second.wait()
    check("calls", first.activated, [{"activation-token": "a token", "desktop-startup-id": "a token"}])
    first.close()


def a_start_takes_the_place_of_one_that_ends():
    first = Application(ending=True)
    start()
    check("calls", len(first.activated), 1)


def a_task_list_knows_the_window():
    wait_for("the empty window", lambda: program.says(L["ui_no_enclosure"]))
    check("class", window.get_wm_class()[1], NAME)
    check("pictures", icon_widths(window), [16, 32, 64, 128])


def what_is_no_control_drags_the_window():
    for what, right, down in (("the background", 60, 400), ("a word on it", 64, 54),
                              ("a box", 400, 290)):
        x, y = (at + way for at, way in zip(place(window), (right, down)))
        check(what, follows(x, y), True)


def a_control_does_not_drag_it():
    for outlet in ("mainguibutton", "controllerselectbox", "refresh_button", "clearconfigbutton"):
        check(outlet, follows(*middle(outlet), tries=5), False)
        program.key("Escape")  # closes what the press has opened


def a_second_start_brings_back_the_minimised_window():
    minimise()
    start_again()
    await_in_front()


def a_second_start_brings_the_window_before_others():
    cover()
    start_again()
    await_in_front()
    other.close()


def a_second_start_does_not_replace_one_that_hangs():
    os.kill(program.process.pid, signal.SIGSTOP)
    try:
        start_again("kestrelraid: is running already, but does not answer\n")
    finally:
        os.kill(program.process.pid, signal.SIGCONT)
    check("status", program.end()[0], 0)


def a_mirror_found_degraded_at_the_start_is_notified():
    global service
    service = Notifications()
    enclosure("new", "box", "--usb", "--serial", "<b>1</b>")
    enclosure("scenario", "box", "degraded")
    enclosure("fault", "box", "delay", "identify", "--delay", "2000")  # the window is minimised first
    enclosure("plug", "box")
    start()
    minimise()
    shown(0, L["raid1_degrade_mode"], CRITICAL)


def the_notification_brings_the_window_back():
    service.choose(1)
    await_in_front()


def a_second_start_answers_no_panel():
    minimise()
    start_again()
    await_in_front()
    program.await_panel(L["raid1_degrade_mode"])
    check("closed", service.closed, [])


def an_answer_closes_the_notification():
    answered(L["raid1_degrade_mode"], 1)
    wait_for("the end of the reading", lambda: not program.busy())
    check("notifications", len(service.shown), 1)


def a_disk_pulled_behind_another_window_is_notified():
    enclosure("unplug", "box")
    wait_for("an empty list", lambda: program.says(L["ui_no_enclosure"]) and not program.entries())
    enclosure("fault", "box", "clear")
    enclosure("scenario", "box", "raid1")
    enclosure("plug", "box")
    program.await_text("raidmodelabel", L["raid_1"])
    cover()
    service.capabilities.remove("body-markup")
    enclosure("pull", "box", "1")
    shown(1, L["hot_swap"], NORMAL)
    answered(L["hot_swap"], 2)
    shown(2, L["raid1_degrade_mode"], CRITICAL)
    answered(L["raid1_degrade_mode"], 3)
    other.close()


def in_front_nothing_is_notified():
    start_again()
    await_in_front()
    program.press("refresh_button")
    program.answer(L["raid1_degrade_mode"])
    check("notifications", len(service.shown), 3)


def a_service_that_does_not_answer_holds_nothing_up():
    service.silent = True
    minimise()
    asked = len(service.asked)
    program.press("refresh_button")
    wait_for("a question to the service", lambda: service.asked[asked:])
    program.answer(L["raid1_degrade_mode"])
    wait_for("the end of the reading", lambda: not program.busy())
    service.silent = False


def the_end_of_the_program_closes_the_notification():
    program.press("refresh_button")
    shown(3, L["raid1_degrade_mode"], CRITICAL)
    start_again()
    await_in_front()
    program.key("alt+F4")
    out, err = program.process.communicate(timeout=30)
    check("status", program.process.returncode, 0)
    check("standard error", err, "Starting run loop.\n\n")
    wait_for("the notification to be closed", lambda: 4 in service.closed)


run(a_second_start_hands_the_launchers_token_on, a_start_takes_the_place_of_one_that_ends,
    a_task_list_knows_the_window, what_is_no_control_drags_the_window, a_control_does_not_drag_it,
    a_second_start_brings_back_the_minimised_window, a_second_start_brings_the_window_before_others,
    a_second_start_does_not_replace_one_that_hangs,
    a_mirror_found_degraded_at_the_start_is_notified, the_notification_brings_the_window_back,
    a_second_start_answers_no_panel, an_answer_closes_the_notification,
    a_disk_pulled_behind_another_window_is_notified, in_front_nothing_is_notified,
    a_service_that_does_not_answer_holds_nothing_up, the_end_of_the_program_closes_the_notification)
