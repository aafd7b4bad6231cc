"""The life of a mirror by the keyboard alone: created, hurt, healed, looked at."""

from kestrel import Program, check, enclosure, enclosures, run, texts, wait_for

L = texts()
OTHER = "Emulated Kestrel Duo  (S/N: AAA)"
BOX = "Emulated Kestrel Duo  (S/N: BBB)"
program = None


def answer(message, key="Return"):
    """Answers the panel with this message by a key; its default button has the focus."""
    program.await_panel(message)
    program.await_focus("panel_default_button")
    program.key(key)
    wait_for(f"the panel '{message}' to close", lambda: not program.asks(message))


def change(question):
    """Agrees to a change and waits for the bridge to leave and to come back."""
    former = enclosures()["box"]["handle"]
    answer(question)
    wait_for("the bridge to return", lambda: enclosures()["box"]["handle"] not in (None, former))


def array(text):
    program.await_text("raidmodelabel", text)
    wait_for("the end of the reading", lambda: not program.busy())


def an_enclosure_is_chosen_from_the_list():
    global program
    enclosure("new", "other", "--usb", "--serial", "AAA")
    enclosure("scenario", "other", "raid0")
    enclosure("new", "box", "--usb", "--serial", "BBB", "--restart-delay", "200")
    for disk in "abc":
        enclosure("disk", disk, "--size", "131072", "--serial", f"SERIAL-{disk}")
    enclosure("insert", "box", "0", "a")
    enclosure("insert", "box", "1", "b")
    enclosure("plug", "other")
    enclosure("plug", "box")
    program = Program()
    wait_for("both enclosures", lambda: program.entries() == [OTHER, BOX] and not program.busy())
    program.key("F4")
    wait_for("the open list", program.list_is_open)
    program.key("End")
    program.key("Return")
    program.await_text("controllerselectbox", BOX)
    program.await_text("disk0serialfield", "SERIAL-a")
    program.await_focus("controllerselectbox")
    program.agrees("box", L)


def the_tab_key_leads_to_the_kinds_and_arrows_choose():
    program.tab_to("raidconfigradiobutton_row0")
    program.key("Down")
    program.await_focus("raidconfigradiobutton_row1")
    program.picture("keyboard-row")


def the_space_key_asks_and_escape_refuses():
    program.tab_to("confirmbutton")
    program.picture("keyboard-create")
    before = enclosures()
    program.key("space")
    program.await_panel(L["all_data_lost"])
    program.picture("keyboard-panel")
    answer(L["all_data_lost"], "Escape")
    program.await_focus("confirmbutton")
    check("disks and enclosure", enclosures(), before)


def the_mirror_is_created():
    program.key("ctrl+n")
    change(L["all_data_lost"])
    array(L["raid_1"])
    check("array", enclosures()["box"]["array"]["state"], "in order")
    program.agrees("box", L)


def a_pulled_disk_is_told_and_read():
    enclosure("pull", "box", "1")
    answer(L["hot_swap"])
    answer(L["raid1_degrade_mode"])
    program.await_text("disk0modefield", L["raid_1"] + L["degrade"])


def a_new_disk_is_offered_for_the_copy():
    enclosure("insert", "box", "1", "c")
    answer(L["hot_swap"])
    answer(L["raid1_degrade_mode"])
    answer(L["raid_info_conflict"])
    wait_for("the direction", lambda: program.showing("rebuild0to1button") and program.enabled("rebuild0to1button"))


def keys_bring_either_tab_to_the_front():
    program.key("ctrl+1")
    wait_for("the configuration", lambda: program.showing("confirmbutton"))
    program.key("ctrl+Right")  # sleeps while its tab is behind
    program.key("ctrl+2")
    wait_for("the rebuild tab", lambda: program.showing("rebuild0to1button"))
    check("no panel", program.panel(), None)


def the_mirror_is_copied_to_the_new_disk():
    enclosure("rate", "box", "unlimited")
    program.tab_to("rebuild0to1button")
    program.picture("keyboard-direction")
    program.key("ctrl+Right")
    change(L["disk1_to_disk2"])
    answer(L["rebuild_finished"])
    array(L["raid_1"])
    check("array", enclosures()["box"]["array"]["state"], "in order")
    program.agrees("box", L)


def the_second_page_is_read_and_left():
    program.key("alt+2")
    wait_for("the second page", lambda: program.showing("tree"))
    program.tab_to("tree")
    program.picture("keyboard-tree")
    check("the enclosure's disks", [row.split(": ")[0] for row in program.tree() if row.startswith("M")],
          ["M0", "M1"] * 2)
    program.tab_to("warmbootbutton")
    program.key("alt+1")
    wait_for("the first page", lambda: program.showing("raidmodelabel"))


def a_french_keyboard_has_the_same_keys():
    program.layout("fr")
    program.key("alt+2")
    wait_for("the second page", lambda: program.showing("tree"))
    program.key("alt+1")
    wait_for("the first page", lambda: program.showing("raidmodelabel"))
    program.key("F5")
    wait_for("the reading", program.busy)
    array(L["raid_1"])


def a_key_closes_the_window():
    program.key("ctrl+q")
    program.process.communicate(timeout=30)
    check("status", program.process.returncode, 0)


run(an_enclosure_is_chosen_from_the_list, the_tab_key_leads_to_the_kinds_and_arrows_choose,
    the_space_key_asks_and_escape_refuses, the_mirror_is_created, a_pulled_disk_is_told_and_read,
    a_new_disk_is_offered_for_the_copy, keys_bring_either_tab_to_the_front,
    the_mirror_is_copied_to_the_new_disk, the_second_page_is_read_and_left,
    a_french_keyboard_has_the_same_keys, a_key_closes_the_window)
