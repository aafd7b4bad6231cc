#!/usr/bin/python3
"""exits.py STORM COUNT [SEED]: has a storm leave at COUNT random moments.

Each must end by itself with 0, or with 3 when a bridge was gone before it could be opened; its last
sector must have been read back; and the RAID record of every disk must be one that was written. Most
must be ends at the moment chosen, not those of a bridge that had gone, or of a storm that was over.
"""

import collections
import os
import random
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

STEPS = 2000
PATIENCE = 120  # seconds until a process that should have left counts as hanging
DISKS = {name: 70000 + 100 * index for index, name in enumerate("abcdefgh")}  # sectors, as in steps.cpp
RECORD = 15  # sectors before the end
MIDWAY = 0.5  # so many of the ends, at least, are those at a chosen moment of the storm


class Wrong(Exception):
    pass


End = collections.namedtuple("End", "status midway written")


class Journal:
    """What a storm has written down: sectors by address, what was left undone, whether it left at the moment chosen."""

    def __init__(self, folder):
        self.written = collections.defaultdict(set)
        self.under_way = None
        self.midway = False
        with open(os.path.join(folder, "journal"), encoding="ascii") as lines:
            for line in lines:
                self._take(line, *line.split())

    def _take(self, line, word, lba=None, data=None):
        if word == "write":
            self.written[int(lba)].add(bytes.fromhex(data))
            self.under_way = line[:20]
        elif word in ("read", "failed"):
            self.under_way = None
        elif word == "midway":
            self.midway = True


def records(folder):
    """The RAID record of every disk that has an image."""
    for root, _, files in os.walk(folder):
        for file in files:
            if file.endswith(".img"):
                lba = DISKS[file[:-4]] - RECORD
                with open(os.path.join(root, file), "rb") as image:
                    image.seek(lba * 512)
                    yield file, lba, image.read(512)


def check_records(seed, folder, written):
    """The RAID record of each disk is one that was written whole."""
    looked = 0
    for name, lba, record in records(folder):
        looked += 1
        if record not in written[lba]:
            raise Wrong(f"seed {seed}: the record of {name} is neither old nor new")
    if looked != len(DISKS):
        raise Wrong(f"seed {seed}: {looked} disks instead of {len(DISKS)}")


def leave_once(program, seed):
    """How it ended: the status, whether at the moment chosen, and how many different sectors were written."""
    with tempfile.TemporaryDirectory() as folder:
        run = subprocess.Popen([program, str(STEPS), str(seed), "leave", folder],
                               env=dict(os.environ, TMPDIR=folder),
                               stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        try:
            said = run.communicate(timeout=PATIENCE)[1].decode(errors="replace")
        except subprocess.TimeoutExpired:
            run.kill()
            raise Wrong(f"seed {seed}: hangs") from None
        if run.returncode not in (0, 3):
            raise Wrong(f"seed {seed}: ended with {run.returncode}\n{said}")
        journal = Journal(folder)
        if journal.under_way:
            raise Wrong(f"seed {seed}: cut off after '{journal.under_way}'")
        check_records(seed, folder, journal.written)
        return End(run.returncode, journal.midway, sum(map(len, journal.written.values())))


def main():
    program, count = sys.argv[1], int(sys.argv[2])
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else random.SystemRandom().randrange(2**32)
    print(f"exits.py STORM {count} {seed}", flush=True)
    try:
        with ThreadPoolExecutor(2) as both:
            ends = list(both.map(lambda one: leave_once(program, one), range(seed, seed + count)))
    except Wrong as wrong:
        print(f"NOT SO: {wrong}")
        sys.exit(1)
    by_status = collections.Counter(end.status for end in ends)
    midway = sum(end.midway for end in ends)
    print(f"{by_status[0]} left with 0, {by_status[3]} with 3, {midway} at the moment chosen; "
          f"{len(DISKS) * len(ends)} records whole, "
          f"{sum(end.written for end in ends)} different sectors written before")
    if midway < MIDWAY * len(ends):
        print(f"NOT SO: only {midway} of {len(ends)} ended at the moment chosen")
        sys.exit(1)


main()
