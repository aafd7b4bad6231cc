#!/usr/bin/python3
"""exits.py STORM COUNT [SEED]: has a storm leave at COUNT random moments.

Each must end by itself with 0, or with 3 when a bridge was gone before it could be opened; its last
sector must have been read back; and every RAID record on the disks must be one that was written.
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


class Wrong(Exception):
    pass


def journal(folder):
    """The sectors written, by address; and what was left undone."""
    written = collections.defaultdict(set)
    under_way = None
    path = os.path.join(folder, "journal")
    if not os.path.exists(path):
        return written, under_way
    with open(path, encoding="ascii") as lines:
        for line in lines:
            word, lba, *data = line.split()
            if word == "write":
                written[int(lba)].add(bytes.fromhex(data[0]))
                under_way = line[:20]
            elif word in ("read", "failed"):
                under_way = None
    return written, under_way


def records(folder):
    """The RAID record of every disk that has an image."""
    for root, _, files in os.walk(folder):
        for file in files:
            if file.endswith(".img"):
                lba = DISKS[file[:-4]] - RECORD
                with open(os.path.join(root, file), "rb") as image:
                    image.seek(lba * 512)
                    yield file, lba, image.read(512)


def leave_once(program, seed):
    """The exit status, how many records were looked at and how many sectors had been written."""
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
        written, under_way = journal(folder)
        if under_way:
            raise Wrong(f"seed {seed}: cut off after '{under_way}'")
        looked = 0
        for name, lba, record in records(folder):
            looked += 1
            if record not in written[lba]:
                raise Wrong(f"seed {seed}: the record of {name} is neither old nor new")
        return run.returncode, looked, sum(map(len, written.values()))


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
    by_status = collections.Counter(status for status, _, _ in ends)
    print(f"{by_status[0]} left with 0, {by_status[3]} with 3; "
          f"{sum(looked for _, looked, _ in ends)} records whole, "
          f"{sum(written for _, _, written in ends)} different sectors written before")


main()
