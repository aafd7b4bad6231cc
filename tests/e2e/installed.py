"""What is installed works from where it lies, and has its place in menus and task lists."""

import configparser
import os
import re
import subprocess
import tempfile
import xml.etree.ElementTree

from kestrel import BUILD, check, run, without_devices

CHECK_HARDENING = os.path.join(os.path.dirname(__file__), "..", "..", "scripts", "check-hardening")
NAME = "org.kestrelraid.KestrelRaid"
folder = tempfile.TemporaryDirectory()
ROOT = folder.name


def it_can_be_installed_anywhere():
    subprocess.run(["cmake", "--install", BUILD, "--prefix", ROOT], check=True, capture_output=True, timeout=60)


def the_program_starts_with_an_access_library():
    # With the bundled one, whatever maker's library this machine has.
    environment = without_devices(dict(os.environ, QT_QPA_PLATFORM="offscreen",
                                       LD_LIBRARY_PATH=f"{ROOT}/lib/kestrelraid"))
    process = subprocess.Popen([f"{ROOT}/bin/kestrelraid"], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                               text=True, env=environment)
    try:
        check("it listens", any("Starting run loop" in line for line in process.stderr), True)
    finally:
        process.kill()
        process.communicate()


def a_makers_library_goes_before_the_bundled_one():
    header = subprocess.run(["readelf", "-d", f"{ROOT}/bin/kestrelraid"], capture_output=True, text=True,
                            check=True, timeout=30).stdout
    check("folders", "[/usr/local/lib:$ORIGIN/../lib/kestrelraid]" in header, True)
    check("bundled", os.path.exists(f"{ROOT}/lib/kestrelraid/libkrraid.so"), True)
    check("mistaken for a maker's", os.path.exists(f"{ROOT}/lib/libkrraid.so"), False)


def everything_is_hardened():
    files = [f"{ROOT}/bin/{name}" for name in ("kestrelraid", "krenclosure", "krenclosured")]
    told = subprocess.run([CHECK_HARDENING, "--installed", *files, f"{ROOT}/lib/kestrelraid/libkrraid.so"],
                          capture_output=True, text=True, timeout=60)
    check("what is missing", told.stderr, "")
    check("looked at", told.returncode, 0)


def the_services_unit_is_valid_and_the_one_that_the_bus_starts():
    with open(f"{ROOT}/share/systemd/user/krenclosured.service", encoding="utf-8") as file:
        unit = file.read()
    # It names the program where the final prefix has it.
    tried = os.path.join(ROOT, "krenclosured.service")
    with open(tried, "w", encoding="utf-8") as file:
        file.write(re.sub("ExecStart=.*", f"ExecStart={ROOT}/bin/krenclosured", unit))
    told = subprocess.run(["systemd-analyze", "--user", "--man=no", "verify", tried],
                          capture_output=True, text=True, timeout=60)
    check("complaints", told.stdout + told.stderr, "")
    bus = configparser.ConfigParser(interpolation=None)
    bus.read(f"{ROOT}/share/dbus-1/services/org.kestrelraid.Enclosure1.service", encoding="utf-8")
    entry = bus["D-BUS Service"]
    check("unit", entry["SystemdService"], os.path.basename(tried))
    check("bus name", f"BusName={entry['Name']}\n" in unit, True)
    check("program", f"ExecStart={entry['Exec']}\n" in unit, True)


def the_menu_entry_is_valid():
    path = f"{ROOT}/share/applications/{NAME}.desktop"
    told = subprocess.run(["desktop-file-validate", path], capture_output=True, text=True, timeout=30)
    check("complaints", told.stdout + told.stderr, "")
    entry = configparser.ConfigParser(interpolation=None)
    entry.read(path, encoding="utf-8")
    check("program", os.access(f"{ROOT}/bin/{entry['Desktop Entry']['Exec']}", os.X_OK), True)
    check("names", (entry["Desktop Entry"]["Icon"], entry["Desktop Entry"]["StartupWMClass"]), (NAME, NAME))


def what_software_centres_read_is_valid():
    path = f"{ROOT}/share/metainfo/{NAME}.metainfo.xml"
    told = subprocess.run(["appstreamcli", "validate", "--no-net", path], capture_output=True, text=True, timeout=60)
    check("valid", told.returncode, 0)
    version = subprocess.run([f"{ROOT}/bin/krenclosure", "--version"], capture_output=True, text=True, check=True,
                             timeout=30).stdout.split()[1]
    releases = xml.etree.ElementTree.parse(path).findall("releases/release")
    check("latest release", releases[0].get("version"), version)


def every_program_has_a_manual_page_in_good_order():
    man = f"{ROOT}/share/man"
    pages = [f"{man}/man1/{name}.1" for name in ("kestrelraid", "krenclosure", "krenclosured")]
    pages.append(f"{man}/man5/kestrelraid-bridges.5")
    told = subprocess.run(["mandoc", "-Tlint", "-Wwarning", *pages], capture_output=True, text=True, timeout=30)
    check("complaints", told.stdout, "")
    check("read", told.returncode, 0)


def the_emulators_page_names_every_command():
    told = subprocess.run([f"{ROOT}/bin/krenclosure", "--help"], capture_output=True, text=True, check=True,
                          timeout=30).stdout
    commands = [line.split()[0] for line in told.split("Subcommands:")[1].splitlines() if line.strip()]
    with open(f"{ROOT}/share/man/man1/krenclosure.1", encoding="utf-8") as page:
        described = re.findall(r"^\.It Cm ([a-z-]+)", page.read(), re.MULTILINE)
    check("commands without a word", sorted(set(commands) - set(described)), [])


def its_icon_has_all_sizes():
    icons = os.path.join(ROOT, "share", "icons", "hicolor")
    sizes = [f"{size}x{size}" for size in (16, 24, 32, 48, 64, 128, 256)]
    check("sizes", sorted(os.listdir(icons)), sorted([*sizes, "scalable"]))
    for size in sizes:
        told = subprocess.run(["identify", "-format", "%wx%h", f"{icons}/{size}/apps/{NAME}.png"],
                              capture_output=True, text=True, check=True, timeout=30)
        check("pixels", told.stdout, size)


run(it_can_be_installed_anywhere, the_program_starts_with_an_access_library,
    a_makers_library_goes_before_the_bundled_one, everything_is_hardened,
    the_services_unit_is_valid_and_the_one_that_the_bus_starts, the_menu_entry_is_valid,
    what_software_centres_read_is_valid, every_program_has_a_manual_page_in_good_order,
    the_emulators_page_names_every_command, its_icon_has_all_sizes)
