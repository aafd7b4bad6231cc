"""What a screen reader is told: no control without a name, no name of ours in a description; changes are announced."""

import re

from kestrel import BUILD, Atspi, GLib, Program, check, descend, description, enclosure, run, texts, wait_for

L = texts()
R = Atspi.Role
CONTROLS = {R.PUSH_BUTTON, R.TOGGLE_BUTTON, R.RADIO_BUTTON, R.CHECK_BOX, R.COMBO_BOX, R.TEXT, R.LIST, R.LIST_ITEM,
            R.PAGE_TAB_LIST, R.PAGE_TAB, R.TREE, R.TREE_TABLE, R.TABLE_CELL, R.TABLE_COLUMN_HEADER, R.PROGRESS_BAR,
            R.IMAGE, R.ANIMATION, R.DIALOG, R.ALERT, R.PANEL, R.WINDOW, R.FRAME, R.NOTIFICATION, R.LINK}
program = None
announced = []


def named(node):
    labels = [relation.get_target(0).get_name() for relation in node.get_relation_set()
              if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]
    return bool(node.get_name() or any(labels))


def seen(node):
    return node.get_state_set().contains(Atspi.StateType.SHOWING)


def everything_is_named(state):
    """Of what is on show now."""
    shown = [node for node in descend(program.application) if seen(node)]
    nameless = [(node.get_role_name(), node.get_description(), node.get_parent().get_description())
                for node in shown if node.get_role() in CONTROLS and not named(node)]
    check(f"nameless controls, {state}", nameless, [])
    markup = [node.get_description() for node in shown if "<p" in node.get_description()]
    check(f"markup read aloud, {state}", markup, [])


def listen():
    def heard(event):
        try:
            if event.detail1 and event.source.get_role() == R.NOTIFICATION:
                announced.append(event.source.get_name())
        except GLib.Error:
            pass  # it has gone meanwhile: announcements stay
    listener = Atspi.EventListener.new(heard)
    listener.register("object:state-changed:showing")
    return listener


def filled(key, *values):
    text = L[key]
    for place, value in enumerate(values, 1):
        text = text.replace(f"%{place}", value)
    return text


def await_announcement(text):
    wait_for(f"'{text}' to be announced, not {announced}", lambda: text in announced)


def the_empty_window_is_named():
    global program
    program = Program()
    wait_for("the empty window", lambda: program.says(L["ui_no_enclosure"]))
    everything_is_named("empty")
    box = program.find("controllerselectbox")
    labels = [relation.get_target(0).get_name() for relation in box.get_relation_set()]
    check("what the empty list is called", labels, [L["ui_controllers"]])


def a_pair_is_named_and_announced():
    enclosure("new", "box", "--usb", "--serial", "ABC123")
    enclosure("scenario", "box", "unconfigured")
    enclosure("plug", "box")
    wait_for("the disks", lambda: program.text("disk1modefield") == L["not_config"] and not program.busy())
    everything_is_named("a pair")
    check("the picture of a disk", program.text("disk0cappicture"), L["disk_1"])
    for outlet, title in (("raid_status_box", "raid_status"), ("raid_config_radio_box", "raid_configuration")):
        check("a group", (program.find(outlet).get_role(), program.text(outlet)), (R.PANEL, L[title]))
    await_announcement(f"{L['not_config']}. {filled('ui_advice_pair', L['create_raid'])}")


def what_is_off_says_why_and_what_is_on_its_key():
    check("a button that is on", description(program.find("refresh_button")), "F5")
    program.press("showdiskguibutton")
    wait_for("the second page", lambda: program.showing("tree"))
    everything_is_named("the second page")
    check("the devices", (program.find("devices_box").get_role(), program.text("devices_box")),
          (R.PANEL, L["ui_devices"]))
    program.press("mainguibutton")
    wait_for("the first page", lambda: program.showing("raid_status_box"))


def a_panel_is_a_dialog_with_its_message():
    program.choose_row(1)
    wait_for("the create button", lambda: program.enabled("confirmbutton"))
    program.press("confirmbutton")
    panel = program.await_panel(L["all_data_lost"])
    check("its name", panel.get_name(), L["warning"])
    program.await_focus("panel_default_button")
    everything_is_named("a panel")
    program.key("Escape")
    wait_for("the panel to close", lambda: not program.panel())


def show(scenario):
    announced.clear()
    enclosure("unplug", "box")
    await_announcement(L["ui_no_enclosure"])
    wait_for("the end of the reading", lambda: not program.busy())
    enclosure("scenario", "box", scenario)
    enclosure("plug", "box")


def a_mirror_is_announced_once():
    show("raid1")
    program.await_text("raidmodelabel", L["raid_1"])
    healthy = f"{L['raid_1']}: {L['ui_verdict_healthy']}. {L['ui_advice_mirror']}"
    await_announcement(healthy)
    everything_is_named("a mirror")
    check("the picture of the volume", program.text("disk0cappicture"), L["raid_1"])
    program.press("refresh_button")
    wait_for("the reading", program.busy)
    wait_for("its end", lambda: program.text("raidmodelabel") == L["raid_1"] and not program.busy())
    check("announced", announced, [L["ui_no_enclosure"], healthy])


def a_degraded_mirror_is_named_and_announced():
    show("degraded")
    program.answer(L["raid1_degrade_mode"])
    wait_for("the loss to be announced", lambda: any(
        text.startswith(L["ui_verdict_degraded"] + ". ") for text in announced))
    wait_for("the end of the reading", lambda: not program.busy())
    everything_is_named("degraded")
    check("the picture of the disk", program.text("disk0cappicture"),
          f"{L['disk_1']}, {L['raid_1']}{L['degrade']}")
    says_empty = f"{L['disk_2']}, {L['ui_empty_bay']}"
    check("the picture of the empty bay", program.says(says_empty), True)


def a_rebuild_is_named_and_its_progress_can_be_read():
    enclosure("rate", "box", "1")
    show("rebuild")
    program.await_text("raidmodelabel", L["raid_1"] + L["rebuilding"])
    wait_for("the bar", lambda: program.showing("levelindicator"))
    everything_is_named("rebuild")
    bar = program.find("levelindicator")
    check("the bar's ends", (Atspi.Value.get_minimum_value(bar), Atspi.Value.get_maximum_value(bar)), (0, 100))
    enclosure("rate", "box", "unlimited")
    wait_for("progress", lambda: Atspi.Value.get_current_value(bar) == 99)
    program.answer(L["rebuild_finished"])


def the_close_button_ends_with_0():
    check("status", program.end()[0], 0)


def the_program_that_is_installed_tells_no_names_of_ours():
    real = Program(name="kestrelraid")
    try:
        with open(f"/proc/{real.process.pid}/maps", encoding="ascii") as maps:
            check("the bundled library", f"{BUILD}/lib/libkrraid.so" in maps.read(), True)
        wait_for("the mirror", lambda: real.says(L["raid_1"]))
        told = [node.get_description() for node in descend(real.application)]
        check("descriptions", [text for text in told if re.search(r"\[\w+\]|button|field", text)], [])
        check("a key is told", "F5" in told, True)
        real.key("ctrl+q")
        real.process.communicate(timeout=30)
        check("status", real.process.returncode, 0)
    finally:
        real.kill()


listener = listen()
run(the_empty_window_is_named, a_pair_is_named_and_announced, what_is_off_says_why_and_what_is_on_its_key,
    a_panel_is_a_dialog_with_its_message, a_mirror_is_announced_once, a_degraded_mirror_is_named_and_announced,
    a_rebuild_is_named_and_its_progress_can_be_read, the_close_button_ends_with_0,
    the_program_that_is_installed_tells_no_names_of_ours)
