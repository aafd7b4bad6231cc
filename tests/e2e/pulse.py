"""How soon the program's interface thread answers, measured from outside.

A window manager asks a window whether it is alive by _NET_WM_PING; the program answers from its event
loop, so the time until the answer is the time that the interface thread was busy otherwise. Two things
tell what of it the machine took: the same message sent to a window of our own, and the kernel's count of
the time that the thread was ready to run and had no processor.
"""

import select
import threading
import time

from windows import window_of
from Xlib import X, display
from Xlib.protocol import event

PAUSE = 0.005  # seconds between an answer and the next question
PATIENCE = 30  # seconds without an answer, after which the program counts as hanging


class Pulse:
    """Asks again and again, on a thread of its own, between start() and stop()."""

    def __init__(self, process_id):
        self.display = display.Display()
        self.root = self.display.screen().root
        # The answer is sent to the root window; toolkits differ in which of the two may hear it.
        self.root.change_attributes(event_mask=X.SubstructureNotifyMask | X.StructureNotifyMask)
        self.protocols, self.ping = (
            self.display.intern_atom(name) for name in ("WM_PROTOCOLS", "_NET_WM_PING"))
        self.window = self.display.create_resource_object("window", window_of(process_id).id)
        self.own = self.root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self.scheduling = f"/proc/{process_id}/task/{process_id}/schedstat"
        self.asked = 0
        self.answers = []  # seconds, of the program
        self.served = []  # the same without the time that the thread had no processor
        self.machine = []  # seconds, of our own window
        self.hangs = False
        self.stopping = threading.Event()
        self.thread = threading.Thread(target=self._run, daemon=True)

    def start(self):
        self.thread.start()
        return self

    def stop(self):
        self.stopping.set()
        self.thread.join()
        self.display.close()

    def _run(self):
        while not self.hangs and not self.stopping.wait(PAUSE):
            self.machine.append(self._measure(self.own))
            ready = self._ready()
            self.answers.append(self._measure(self.window))
            self.served.append(max(0.0, self.answers[-1] - (self._ready() - ready)))

    def _ready(self):
        """Seconds that the program's interface thread was ready to run and had no processor."""
        try:
            with open(self.scheduling, encoding="ascii") as counts:
                return int(counts.read().split()[1]) / 1e9
        except OSError:  # the program has ended
            return 0.0

    def _measure(self, window):
        self.asked += 1
        start = time.monotonic()
        window.send_event(event.ClientMessage(
            window=window, client_type=self.protocols,
            data=(32, [self.ping, self.asked, window.id, 0, 0])))
        self.display.flush()
        self.hangs = not self._answered(start + PATIENCE)
        return time.monotonic() - start

    def _answered(self, deadline):
        """Whether this question came back; earlier events are dropped."""
        while True:
            while self.display.pending_events():
                if self._is_answer(self.display.next_event()):
                    return True
            if not select.select([self.display], [], [], max(0, deadline - time.monotonic()))[0]:
                return False

    def _is_answer(self, came):
        kind = came.type & 0x7F  # without the mark of an event that a client has sent
        return (kind == X.ClientMessage and came.client_type == self.protocols and
                list(came.data[1][:2]) == [self.ping, self.asked])

    def report(self):
        """Three lines for people."""
        return "\n".join([figures("interface thread", self.answers),
                          figures("  without its waits for a processor", self.served),
                          figures("the machine itself", self.machine)])

    def longest(self):
        return max(self.answers)


def figures(what, seconds):
    ordered = sorted(seconds)
    hundredth = ordered[len(ordered) * 99 // 100]
    late = sum(1 for time in ordered if time > 0.05)
    return (f"{what}: {len(ordered)} answers, 99 of 100 within {hundredth * 1000:.1f} ms, "
            f"the longest after {ordered[-1] * 1000:.1f} ms, {late} beyond 50 ms")
