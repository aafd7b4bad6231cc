"""The service behind the enclosures is killed and restarted under the running program."""

import os
import signal
import subprocess

from kestrel import Program, check, enclosure, run, texts, wait_for

L = texts()
program = None


def service_pid():
    answer = subprocess.run(
        ["dbus-send", "--session", "--print-reply=literal", "--dest=org.freedesktop.DBus",
         "/org/freedesktop/DBus", "org.freedesktop.DBus.GetConnectionUnixProcessID",
         "string:org.kestrelraid.Enclosure1"], capture_output=True, text=True)
    return int(answer.stdout.split()[-1]) if answer.returncode == 0 else None


def the_demo_set_is_listed():
    global program
    enclosure("demo")
    program = Program()
    wait_for("three entries", lambda: len(program.entries()) == 3)
    wait_for("the first one's disks", lambda: program.text("disk0modelfield"))


def a_killed_service_takes_its_enclosures_along():
    os.kill(service_pid(), signal.SIGKILL)
    wait_for("an empty list", lambda: program.says(L["ui_no_enclosure"]) and not program.entries())
    check("the program starts no service", service_pid(), None)


def a_restarted_service_brings_them_back():
    enclosure("list")
    wait_for("three entries", lambda: len(program.entries()) == 3)
    wait_for("the first one's disks", lambda: program.text("disk0modelfield"))


def the_close_button_ends_with_0():
    check("status", program.end()[0], 0)


run(the_demo_set_is_listed, a_killed_service_takes_its_enclosures_along,
    a_restarted_service_brings_them_back, the_close_button_ends_with_0)
