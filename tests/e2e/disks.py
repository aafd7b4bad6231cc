"""The emulated disks' image files, and the copies that the program keeps before it changes a disk."""

import hashlib
import os
import re
import stat

SECTOR = 512
RECORD = 15  # the RAID record lies so many sectors before the end of a disk


class Disk:
    """A disk's sectors, past enclosure and chip."""

    def __init__(self, name):
        self.name = name
        self.path = os.path.join(os.environ["XDG_DATA_HOME"], "kestrelraid", "disks", f"{name}.img")

    def sectors(self):
        return os.path.getsize(self.path) // SECTOR

    def read(self, first, count):
        with open(self.path, "rb") as image:
            image.seek(first * SECTOR)
            return image.read(count * SECTOR)

    def write(self, first, data):
        with open(self.path, "r+b") as image:
            image.seek(first * SECTOR)
            image.write(data)

    def record(self):
        return self.read(self.sectors() - RECORD, 1)

    def mode(self):
        """The RAID mode that its record names; 0 without one."""
        record = self.record()
        return record[2] if record[:2] == b"KR" else 0

    def marked(self):
        """Whether its record marks it as the source of a copy."""
        return self.record()[4] & 0x80 != 0

    def digest(self, first=0, count=None):
        """What identifies the content of some of its sectors, or of all."""
        length = self.sectors() - first if count is None else count
        digest = hashlib.sha256()
        with open(self.path, "rb") as image:
            image.seek(first * SECTOR)
            left = length * SECTOR
            while left > 0:
                piece = image.read(min(left, 1 << 20))
                digest.update(piece)
                left -= len(piece)
        return digest.hexdigest()


def records_in(copy):
    """The RAID records that a copy holds, by the serial numbers of their disks."""
    records = {}
    with open(copy, encoding="utf-8") as lines:
        for line in lines:
            if line.startswith("Serial: "):
                serial = line.removeprefix("Serial: ").rstrip()
                records[serial] = b""
            elif re.match("[0-9a-f]{8}: ", line):
                records[serial] += bytes.fromhex(line.partition(": ")[2])
    return records


def safety_copies():
    """The kept copies, oldest first. Each is its owner's alone."""
    folder = os.path.join(os.environ["XDG_STATE_HOME"], "kestrelraid")
    if not os.path.isdir(folder):
        return []
    copies = [os.path.join(folder, name) for name in os.listdir(folder)]
    for copy in copies:
        if stat.S_IMODE(os.stat(copy).st_mode) != 0o600:
            raise AssertionError(f"{copy} can be read by others")
    return sorted(copies, key=os.path.getmtime)
