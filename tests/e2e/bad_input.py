"""What is wrong around the program is told in one line, with an honest status; nothing hangs."""

import os
import subprocess
import tempfile

from kestrel import BUILD, Program, check, enclosure, run, texts, wait_for

PROGRAM = f"{BUILD}/bin/kestrelraid-emulated"


def start(environment):
    return subprocess.run([PROGRAM], env=environment, capture_output=True, text=True, timeout=30)


def without_a_display_it_says_so_and_ends_with_1():
    environment = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY")}
    ended = start(environment)
    check("status", ended.returncode, 1)
    check("lines", ended.stderr.count("\n"), 1)
    check("what is missing", "no display" in ended.stderr, True)


def without_a_session_bus_the_window_is_empty():
    environment = dict(os.environ)
    environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nonexistent/bus"
    process = subprocess.Popen([PROGRAM], env=environment, stderr=subprocess.PIPE, text=True)
    try:
        window, registry = process.stderr.readline(), process.stderr.readline()
        check("what the window says", window.startswith("kestrelraid: no session bus: "), True)
        check("what the registry says", registry.startswith("no session bus: "), True)
        check("it goes on", process.poll(), None)
    finally:
        process.kill()
        process.communicate()


def a_library_that_lacks_a_symbol_is_refused_at_start():
    with tempfile.TemporaryDirectory() as folder:
        source = os.path.join(folder, "lacking.c")
        with open(source, "w", encoding="ascii") as file:
            file.write("int getDeviceList(void* list, int* count) { (void)list; return *count; }\n")
        subprocess.run(["cc", "-shared", "-fPIC", "-Wl,-soname,libkrraid.so", "-o",
                        os.path.join(folder, "libkrraid.so"), source], check=True)
        ended = start(dict(os.environ, LD_LIBRARY_PATH=folder))
    check("status", ended.returncode, 127)
    check("lines", ended.stderr.count("\n"), 1)
    check("what is missing", "undefined symbol" in ended.stderr, True)


def hostile_metadata_is_shown_as_no_array():
    enclosure("new", "hostile", "--usb", "--serial", "<b>bold</b>&x")
    enclosure("disk", "evil-a", "--size", "1000000", "--model", "<img src=x>&Model", "--serial", "<i>0</i>")
    enclosure("disk", "evil-b", "--size", "1000000", "--model", "B", "--serial", "B")
    enclosure("insert", "hostile", "0", "evil-a")
    enclosure("insert", "hostile", "1", "evil-b")
    data = os.path.join(os.environ["XDG_DATA_HOME"], "kestrelraid")
    for folder, _, files in os.walk(data):
        for name in files:
            path = os.path.join(folder, name)
            if os.path.getsize(path) == 1000000 * 512:
                with open(path, "r+b") as image:
                    image.seek((1000000 - 15) * 512)
                    image.write(b"KR\xff" + os.urandom(509))
    enclosure("plug", "hostile")
    program = Program()
    try:
        program.await_text("disk0modelfield", "<img src=x>&Model")
        program.await_text("disk0serialfield", "<i>0</i>")
        program.await_text("disk0modefield", texts()["not_config"])
        wait_for("the list", lambda: program.entries() == ["Emulated Kestrel Duo  (S/N: <b>bold</b>&x)"])
        program.picture("hostile-names")
        check("status", program.end()[0], 0)
    finally:
        program.kill()


run(without_a_display_it_says_so_and_ends_with_1, without_a_session_bus_the_window_is_empty,
    a_library_that_lacks_a_symbol_is_refused_at_start, hostile_metadata_is_shown_as_no_array)
