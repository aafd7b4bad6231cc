"""The faults that are known to change nothing that can be observed."""

import os

FIELDS = ("in", "was", "becomes", "because")
ANYTHING = "anything"  # that the line becomes


def is_harmless(change, known):
    path, function, was, becomes = change.key()
    return any((path, function, was, any_or_this) in known for any_or_this in (becomes, ANYTHING))


def read_harmless():
    """The keys of the changes in harmless.txt."""
    with open(os.path.join(os.path.dirname(__file__), "harmless.txt"), encoding="utf-8") as file:
        entries = file.read().split("\n\n")
    keys = set()
    for entry in entries:
        lines = [line for line in entry.splitlines() if not line.startswith("#")]
        if not lines:
            continue
        fields = dict(line.split(": ", 1) for line in lines)
        if tuple(fields) != FIELDS:
            raise ValueError(f"harmless.txt: not {FIELDS}: {entry}")
        path, function = fields["in"].split(" ", 1) if " " in fields["in"] else (fields["in"], "")
        keys.add((path, function, fields["was"], fields["becomes"]))
    return keys
