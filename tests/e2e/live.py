"""Enclosures and disks come and go under the running program, and a rebuild is followed to its end."""

from kestrel import Program, check, enclosure, enclosures, run, texts, wait_for

L = texts()
program = None


def agrees(name):
    program.agrees(name, L)


def an_empty_desk_shows_no_enclosure():
    global program
    program = Program()
    wait_for("the empty window", lambda: program.says(L["ui_no_enclosure"]))
    check("entries", program.entries(), [])


def a_plugged_mirror_is_listed_and_shown():
    enclosure("new", "mirror", "--usb", "--serial", "ABC123", "--location", "0x100000")
    enclosure("scenario", "mirror", "raid1")
    enclosure("plug", "mirror")
    program.await_text("raidmodelabel", L["raid_1"])
    check("entries", program.entries(), ["Emulated Kestrel Duo  (S/N: ABC123)"])
    check("selected", program.text("controllerselectbox"), "Emulated Kestrel Duo  (S/N: ABC123)")
    agrees("mirror")


def the_second_page_shows_the_device_tree():
    program.press("showdiskguibutton")
    model = enclosures()["mirror"]["bays"][0]["model"]
    rows = ["Device 1 (USB)", "Emulated Kestrel Duo (SN: ABC123)", f"M0: {model}", f"M1: {model}"]
    wait_for("the device tree", lambda: program.tree() == rows)
    program.press("mainguibutton")
    wait_for("the first page", lambda: program.showing("raidmodelabel"))


def no_plugins_for_picture_formats_are_loaded():
    with open(f"/proc/{program.process.pid}/maps", encoding="utf-8", errors="replace") as file:
        check("plugins for picture formats", "imageformats" in file.read(), False)


def a_second_enclosure_joins_the_list():
    enclosure("new", "stripe", "--firewire", "--guid", "0x00A0B0C0D0E0F001")
    enclosure("scenario", "stripe", "raid0")
    enclosure("plug", "stripe")
    wait_for("two entries", lambda: len(program.entries()) == 2)
    check("entries", program.entries()[1], "Emulated Kestrel Duo  (GUID: A0B0C0D0E0F001)")
    program.await_text("raidmodelabel", L["raid_1"])  # the selected one stays selected
    agrees("mirror")


def a_pulled_disk_is_told_and_shown():
    enclosure("pull", "mirror", "1")
    program.answer(L["hot_swap"])
    program.answer(L["raid1_degrade_mode"])
    program.await_text("disk0modefield", L["raid_1"] + L["degrade"])
    agrees("mirror")


def the_disk_pushed_in_again_has_diverged():
    enclosure("insert", "mirror", "1", "mirror-b")
    program.answer(L["hot_swap"])
    program.answer(L["raid_info_conflict"])
    wait_for("a direction to choose", lambda: program.enabled("rebuild1to0button"))
    check("the later half", program.text("disk0oldnewlabel"), L["old"])
    check("the earlier half", program.text("disk1oldnewlabel"), L["new"])
    agrees("mirror")


def an_unplugged_enclosure_leaves_the_list():
    enclosure("unplug", "mirror")
    program.await_text("raidmodelabel", L["raid_0"])  # the one that is left is selected
    check("entries", program.entries(), ["Emulated Kestrel Duo  (GUID: A0B0C0D0E0F001)"])
    agrees("stripe")


def a_rebuild_is_followed_to_its_end():
    enclosure("unplug", "stripe")
    wait_for("an empty list", lambda: program.says(L["ui_no_enclosure"]) and not program.entries())
    enclosure("scenario", "mirror", "rebuild")
    enclosure("rate", "mirror", "unlimited")
    enclosure("plug", "mirror")
    program.await_text("raidmodelabel", L["raid_1"] + L["rebuilding"])
    wait_for("the progress", lambda: program.showing("percentagefield") and
             program.text("percentagefield") == "99.0%")
    program.answer(L["rebuild_finished"])
    program.await_text("raidmodelabel", L["raid_1"])
    check("progress", program.showing("percentagefield"), False)
    agrees("mirror")


def the_close_button_ends_with_0():
    status, out, err = program.end()
    check("status", status, 0)
    check("standard output", out.startswith("added") or out.startswith("tree built"), True)
    check("standard error", err, "Starting run loop.\n\n")


run(an_empty_desk_shows_no_enclosure, a_plugged_mirror_is_listed_and_shown,
    the_second_page_shows_the_device_tree, no_plugins_for_picture_formats_are_loaded,
    a_second_enclosure_joins_the_list, a_pulled_disk_is_told_and_shown,
    the_disk_pushed_in_again_has_diverged, an_unplugged_enclosure_leaves_the_list,
    a_rebuild_is_followed_to_its_end, the_close_button_ends_with_0)
