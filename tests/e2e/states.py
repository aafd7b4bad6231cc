"""Every state of an array is shown as what it is, and a picture of each is kept."""

from kestrel import Program, check, enclosure, run, texts, wait_for

# A state's name, what krenclosure makes of it, the outlets that tell it, the alerts that come.
STATES = [
    ("unconfigured", "unconfigured", {"disk0modefield": ["not_config"], "raidmodelabel": []}, []),
    ("raid0", "raid0", {"raidmodelabel": ["raid_0"]}, []),
    ("raid1", "raid1", {"raidmodelabel": ["raid_1"]}, []),
    ("span", "span", {"raidmodelabel": ["span"]}, []),
    ("degraded", "degraded", {"disk0modefield": ["raid_1", "degrade"]}, ["raid1_degrade_mode"]),
    ("diverged", "diverged", {"disk0modefield": ["raid_1", "degrade"], "disk1modefield": ["raid_1", "degrade"]},
     ["raid_info_conflict"]),
    ("broken-stripe", "broken", {"disk0modefield": ["raid_0", "broken"]}, ["raid_info_conflict"]),
    ("rebuild", "rebuild", {"raidmodelabel": ["raid_1", "rebuilding"]}, []),
]


def show(language, locale, scale, name, scenario, expected, alerts):
    words = texts(language)
    enclosure("scenario", "box", scenario)
    enclosure("plug", "box")
    program = Program(locale, scale)
    try:
        for alert in alerts:
            program.answer(words[alert])
        for outlet, keys in expected.items():
            program.await_text(outlet, "".join(words[key] for key in keys))
        wait_for("the end of the reading", lambda: program.text("disk0modelfield") and not program.busy())
        if scenario == "rebuild":
            wait_for("a percentage", lambda: program.text("percentagefield"))
        suffix = ("" if language == "en" else f"-{language}") + ("" if scale is None else f"@{scale}x")
        program.picture(f"{name}{suffix}")
        check("status", program.end()[0], 0)
    finally:
        program.kill()
    enclosure("unplug", "box")


def step(language, locale, scale, state):
    def one():
        show(language, locale, scale, *state)
    one.__name__ = f"{state[0]} {language} {scale or 1}x"
    return one


def the_empty_desk():
    program = Program()
    wait_for("the empty window", lambda: program.says(texts()["ui_no_enclosure"]))
    program.picture("no-enclosure")
    check("status", program.end()[0], 0)


def an_enclosure():
    enclosure("new", "box", "--usb", "--serial", "ABC123")
    enclosure("rate", "box", "20")


run(the_empty_desk, an_enclosure,
    *[step("en", "C.UTF-8", None, state) for state in STATES],
    step("de", "de_DE.UTF-8", None, STATES[4]),
    step("de", "de_DE.UTF-8", None, STATES[7]),
    step("en", "C.UTF-8", 2, STATES[5]))
