"""Measures how long the client takes from its start to its icon in the tray, against a bare Qt program with an icon.

    scripts/isolated.sh --display -- python3 benchmarks/bench_start.py CLIENT BARE_PROGRAM [ROUNDS]

The icon is there when the program has asked for its place in the tray, and answers when its event loop has answered the
window manager's ping, which for the client is once the splash is up. This script is the tray.
"""

import ctypes
import select
import statistics
import subprocess
import sys
import time

PROMISE = 1.5
PATIENCE = 20  # seconds
ROUNDS = 11
CLIENT_MESSAGE = 33
STRUCTURE_NOTIFY = 1 << 17
DOCK_REQUEST = 0


class ClientMessage(ctypes.Structure):
    _fields_ = [
        ("type", ctypes.c_int),
        ("serial", ctypes.c_ulong),
        ("send_event", ctypes.c_int),
        ("display", ctypes.c_void_p),
        ("window", ctypes.c_ulong),
        ("message_type", ctypes.c_ulong),
        ("format", ctypes.c_int),
        ("data", ctypes.c_long * 5),
    ]


class Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("client", ClientMessage), ("padding", ctypes.c_long * 24)]


class Tray:
    """A system tray that knows no more than to be asked for a place."""

    def __init__(self):
        self._x11 = ctypes.CDLL("libX11.so.6")
        for name, result in (("XOpenDisplay", ctypes.c_void_p), ("XDefaultRootWindow", ctypes.c_ulong),
                             ("XCreateSimpleWindow", ctypes.c_ulong), ("XInternAtom", ctypes.c_ulong)):
            getattr(self._x11, name).restype = result
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(None))
        if not self._display:
            sys.exit("there is no X server to show a tray on")
        self._root = ctypes.c_ulong(self._x11.XDefaultRootWindow(self._display))
        self._opcode = self._atom("_NET_SYSTEM_TRAY_OPCODE")
        self._protocols = self._atom("WM_PROTOCOLS")
        self._ping = self._atom("_NET_WM_PING")
        # Answers to a ping go to the root window.
        self._x11.XSelectInput(self._display, self._root, ctypes.c_long(STRUCTURE_NOTIFY))
        window = self._x11.XCreateSimpleWindow(self._display, self._root, 0, 0, 1, 1, 0, 0, 0)
        self._window = ctypes.c_ulong(window)
        selection = ctypes.c_ulong(self._atom("_NET_SYSTEM_TRAY_S0"))
        self._x11.XSetSelectionOwner(self._display, selection, self._window, ctypes.c_ulong(0))
        self._send(self._root.value, self._atom("MANAGER"), STRUCTURE_NOTIFY, [0, selection.value, window])

    def _atom(self, name):
        return self._x11.XInternAtom(self._display, name.encode(), 0)

    def _send(self, window, kind, mask, data):
        event = Event()
        event.client = ClientMessage(CLIENT_MESSAGE, 0, 1, None, window, kind, 32)
        event.client.data[: len(data)] = data
        self._x11.XSendEvent(
            self._display, ctypes.c_ulong(window), 0, ctypes.c_long(mask), ctypes.byref(event))
        self._x11.XFlush(self._display)

    def _wait_for(self, wanted):
        """The first client message that is wanted, and when it came."""
        event = Event()
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            while self._x11.XPending(self._display):
                self._x11.XNextEvent(self._display, ctypes.byref(event))
                if event.type == CLIENT_MESSAGE and wanted(event.client):
                    return event.client, time.monotonic()
            select.select([self._x11.XConnectionNumber(self._display)], [], [], 0.1)
        sys.exit("the program did not show its icon")

    def measure(self, command):
        """Milliseconds from the start of the command to its icon and to its answer."""
        started = time.monotonic()
        with subprocess.Popen(command, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as program:
            try:
                request, docked = self._wait_for(
                    lambda message: message.message_type == self._opcode and message.data[1] == DOCK_REQUEST)
                icon = request.data[2]
                self._send(icon, self._protocols, 0, [self._ping, 0, icon])
                _, answered = self._wait_for(
                    lambda message: message.message_type == self._protocols and message.data[2] == icon)
            finally:
                program.terminate()
        return 1000 * (docked - started), 1000 * (answered - started)


def main():
    programs = sys.argv[1:3]
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else ROUNDS
    tray = Tray()
    for program in programs:  # what lies on the disk is read once
        tray.measure([program])
    # In turn, so that a slow moment of the machine meets both.
    times = [[tray.measure([program]) for program in programs] for _ in range(rounds)]
    for step, name in enumerate(("promise | start: ms to the icon, to a bare program", "start: ms until it answers")):
        ours, bare = (statistics.median(both[program][step] for both in times) for program in (0, 1))
        promised = f" | {PROMISE:.2f}" if step == 0 else ""
        print(f"{name} | {ours:.0f} | {bare:.0f} | {ours / bare:.2f}{promised}", flush=True)


main()
