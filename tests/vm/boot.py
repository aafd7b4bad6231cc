#!/usr/bin/env python3
"""boot.py FOLDER TESTS...: boots the image of FOLDER once for each filter of tests, all at the same time, prints
their consoles and ends with 0 when every test has passed."""

import re
import subprocess
import sys
import threading
import time

LIMIT = 280  # seconds


def command(folder, tests):
    return ["timeout", "--foreground", str(LIMIT), "qemu-system-x86_64", "-nodefaults", "-no-user-config",
            "-display", "none", "-no-reboot", "-machine", "q35,accel=tcg", "-cpu", "qemu64,+rdrand", "-smp", "1", "-m", "768",
            "-kernel", f"{folder}/kernel", "-initrd", f"{folder}/initrd", "-serial", "stdio",
            "-append", "console=ttyS0 quiet loglevel=3 panic=-1 mitigations=off no_timer_check "
                       f"random.trust_cpu=on kestrel_filter={tests}"]


class Machine(threading.Thread):
    """One machine with its tests."""

    def __init__(self, folder, tests):
        super().__init__()
        self.tests = tests
        self.passed = False
        self.count = 0
        self.console = subprocess.Popen(command(folder, tests), stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                        text=True, errors="replace")

    def run(self):
        for line in self.console.stdout:
            print(f"{self.tests} {line.rstrip()}", flush=True)
            self.count += sum(map(int, re.findall(r"^\[  PASSED  \] (\d+) tests?\.", line)))
            self.passed = self.passed or re.match(r"kestrel: ended with 0\b", line) is not None
        if self.console.wait() == 124:
            print(f"{self.tests} did not end within {LIMIT} seconds", file=sys.stderr)
            self.passed = False


def main(folder, *filters):
    began = time.monotonic()
    machines = [Machine(folder, tests) for tests in filters]
    for machine in machines:
        machine.start()
    try:
        for machine in machines:
            machine.join()
    except KeyboardInterrupt:
        for machine in machines:
            machine.console.terminate()
        return 130
    for machine in machines:
        machine.passed = machine.passed and machine.count > 0
        print(f"{machine.tests} {'passed' if machine.passed else 'FAILED'}, {machine.count} tests")
    print(f"{len(machines)} virtual machines in {time.monotonic() - began:.0f} s")
    return 0 if all(machine.passed for machine in machines) else 1


sys.exit(main(*sys.argv[1:]))
