"""Builds a changed source into the tests that hold it, and runs them."""

import json
import os
import resource
import shlex
import shutil
import signal
import subprocess
import time

PATIENCE = 10  # a changed test may take this many times as long as the unchanged one, and
LEAST = 5  # this many seconds besides
MEMORY = 8 << 30  # bytes


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))


def end_group(process):
    """Ends a process with what it has started, which may outlive it."""
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
    process.wait()


class Test:
    """One test program of the build tree."""

    def __init__(self, build, listed):
        self.name = listed["name"]
        self.command = listed["command"]
        self.program = os.path.relpath(self.command[0], build)
        self.link = output_of("ninja", "-C", build, "-t", "commands", "-s", self.program)
        self.link = self.link.splitlines()[-1]
        self.environment = {}
        for fact in listed["properties"]:
            if fact["name"] == "ENVIRONMENT":
                self.environment = dict(pair.split("=", 1) for pair in fact["value"])
        self.seconds = 0.0
        self.kills = 0

    def links(self, library):
        return library in self.link.split()


class Workshop:
    """A build tree whose libraries are exchanged one object at a time, in folders beside it."""

    def __init__(self, build):
        self.build = os.path.abspath(build)
        with open(f"{build}/compile_commands.json", encoding="utf-8") as file:
            self.compiles = {entry["file"]: entry["command"] for entry in json.load(file)}
        listed = json.loads(output_of("ctest", "--test-dir", build, "--show-only=json-v1"))["tests"]
        built = [test for test in listed if "command" in test]
        self.tests = [Test(self.build, test) for test in built]

    def measure(self):
        """Runs every test unchanged. Returns the name of one that fails, or nothing."""
        for test in self.tests:
            begun = time.monotonic()
            if self.run(test, test.command[0], ".", 600) != "passed":
                return test.name
            test.seconds = time.monotonic() - begun
        return None

    def run(self, test, program, folder, limit):
        """How the test ends: passed, failed or timed out."""
        environment = os.environ | test.environment | {
            "TMPDIR": os.path.abspath(folder), "QT_QPA_PLATFORM": "offscreen", "GTEST_FAIL_FAST": "1"}
        started = subprocess.Popen([program, *test.command[1:]], cwd=folder, env=environment,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, start_new_session=True, preexec_fn=limit_memory)
        try:
            status = started.wait(limit)
        except subprocess.TimeoutExpired:
            return "timed out"
        finally:
            end_group(started)
        return "passed" if status == 0 else "failed"

    def library_with(self, source, path, folder):
        """The library of `path` with that source in its place, in `folder`; nothing if it does not build."""
        command = shlex.split(self.compiles[os.path.abspath(path)])
        was_made = command[command.index("-o") + 1]
        made = f"{folder}/{os.path.basename(was_made)}"
        command[command.index("-o") + 1] = made
        command[command.index("-c") + 1] = source
        # What is changed may leave something unused, which is no fault here.
        if subprocess.run([*command, "-w"], cwd=self.build, capture_output=True).returncode != 0:
            return None
        library = f"{folder}/{os.path.basename(self.library_of(path))}"
        shutil.copy(f"{self.build}/{self.library_of(path)}", library)
        subprocess.run(["ar", "r", library, made], check=True, capture_output=True)
        return library

    @staticmethod
    def library_of(path):
        """The library that holds a source, in the build tree: one for each folder."""
        folder = os.path.dirname(path)
        return f"{folder}/libkestrel_{folder}.a"

    def program_with(self, library, path, test, folder):
        """The test with that library in its place; nothing if it does not link."""
        program = f"{folder}/{os.path.basename(test.program)}"
        command = test.link.replace(f" {self.library_of(path)} ", f" {library} ")
        command = command.replace(f" -o {test.program} ", f" -o {program} ")
        linked = subprocess.run(command, shell=True, cwd=self.build, capture_output=True)
        return program if linked.returncode == 0 else None

    def likely_first(self, path):
        """The tests of a source: those named like it, then those that have found most, then the quick ones."""
        stem = os.path.splitext(os.path.basename(path))[0]
        holders = [test for test in self.tests if test.links(self.library_of(path))]
        return sorted(holders, key=lambda test: (not test.name.startswith(stem), -test.kills, test.seconds))

    def try_change(self, change, folder):
        """What the tests say of a change: (fate, test)."""
        changed = f"{folder}/{os.path.basename(change.path)}"
        with open(changed, "w", encoding="utf-8") as file:
            file.write(change.source)
        library = self.library_with(changed, change.path, folder)
        if library is None:
            return "did not build", ""
        for test in self.likely_first(change.path):
            program = self.program_with(library, change.path, test, folder)
            if program is None:
                return "did not build", test.name
            ended = self.run(test, program, folder, PATIENCE * test.seconds + LEAST)
            os.remove(program)
            if ended != "passed":
                test.kills += 1
                return ("killed" if ended == "failed" else "timed out"), test.name
        return "survived", ""
