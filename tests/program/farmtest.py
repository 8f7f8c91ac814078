"""Runs the client and the demo farm for the whole-program tests.

A test is a script of checks: the first that fails ends it. Nothing here waits for a time to pass, only for a line of a
program's output, with a limit; the programs' output is shown when a test fails.
"""

import os
import re
import signal
import subprocess
import sys
import threading

# What a healthy program stays far below, even with sanitizers on a busy machine.
PATIENCE = 60

with open(os.path.join(os.path.dirname(__file__), "../../CMakeLists.txt"), encoding="utf-8") as project:
    VERSION = re.search(r"VERSION ([\d.]+) LANGUAGES", project.read()).group(1)
PRODUCT = f"Tarrow {VERSION}"
SETTINGS_FILE = os.path.join(os.environ["XDG_CONFIG_HOME"], "Loomwright", "Tarrow\\9\\Alertor.conf")


class Failure(Exception):
    pass


def check(condition, text):
    if not condition:
        raise Failure(text)


def equal(got, wanted, what):
    check(got == wanted, f"{what}: got {got!r}, wanted {wanted!r}")


class Program:
    """A program whose output, standard error included, is read line by line."""

    running = []

    def __init__(self, name, command, environment=None):
        self.name = name
        self.lines = []
        self._news = threading.Condition()
        self._process = subprocess.Popen(
            command,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            env={**os.environ, **(environment or {})},
            encoding="utf-8",
            errors="replace",
        )
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()
        Program.running.append(self)

    def _read(self):
        for line in self._process.stdout:
            with self._news:
                self.lines.append(line.rstrip("\n"))
                self._news.notify_all()

    def matching(self, pattern):
        with self._news:
            return [line for line in self.lines if re.search(pattern, line)]

    def sees(self, pattern, count=1, patience=PATIENCE):
        """True as soon as `count` lines match; False when the patience ends first."""
        with self._news:
            return self._news.wait_for(
                lambda: sum(1 for line in self.lines if re.search(pattern, line)) >= count, patience
            )

    def expect(self, pattern, count=1):
        """The first of the lines that match, as a match object; fails when fewer than `count` come."""
        check(self.sees(pattern, count), f"{self.name} did not print {count} lines with {pattern!r}")
        return re.search(pattern, self.matching(pattern)[0])

    def is_running(self):
        return self._process.poll() is None

    def exit_code(self):
        try:
            code = self._process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise Failure(f"{self.name} does not end") from None
        self._reader.join(PATIENCE)
        return code

    @property
    def pid(self):
        return self._process.pid

    def kill(self):
        self._process.kill()
        self._process.wait()

    def quit(self, request=signal.SIGTERM):
        """Asks the program to end, which it is to do in order."""
        check(self.is_running(), f"{self.name} ended by itself")
        self._process.send_signal(request)
        equal(self.exit_code(), 0, f"exit code of {self.name}")


def farm(*options, port=0):
    """A running demo farm that renders nothing; its port is `farm.port`."""
    program = Program("the farm", [FARM, "--port", str(port), "--no-frames", *options])
    program.port = int(program.expect(r"^listening on (\d+)$").group(1))
    return program


def client(port, *options, environment=None):
    """The client, on its way to the port; it prints a line for every event that it keeps."""
    return Program(
        "the client",
        [CLIENT, "-server", "127.0.0.1", "-port", str(port), *options],
        {"QT_LOGGING_RULES": "tarrow.notify.info=true", **(environment or {})},
    )


EVENT = r"^tarrow\.notify: event "


def write_settings(groups):
    """The client's settings file in the home of this test."""
    os.makedirs(os.path.dirname(SETTINGS_FILE), exist_ok=True)
    with open(SETTINGS_FILE, "w", encoding="utf-8") as file:
        for group, values in groups.items():
            file.write(f"[{group}]\n")
            for key, value in values.items():
                file.write(f"{key}={value}\n")


def stored_settings():
    """What the settings file holds, and what stands beside it."""
    with open(SETTINGS_FILE, "rb") as file:
        return file.read(), os.listdir(os.path.dirname(SETTINGS_FILE))


def windows(title):
    """Identifiers of the visible windows of that title."""
    result = subprocess.run(
        ["xdotool", "search", "--onlyvisible", "--name", f"^{re.escape(title)}$"],
        capture_output=True,
        text=True,
        check=False,
    )
    return result.stdout.split()


def wait_for(condition, what, patience=PATIENCE):
    """For what no program prints: asks again and again until the condition holds."""
    pause = threading.Event()
    for _ in range(patience * 10):
        result = condition()
        if result:
            return result
        pause.wait(0.1)
    raise Failure(f"waited in vain for {what}")


def run(test):
    """Runs the test function of a script called with the paths of the client and of the farm."""
    global CLIENT, FARM
    CLIENT, FARM = sys.argv[1:3]
    try:
        test()
    except Failure as failure:
        print(f"FAILED: {failure}")
        for program in Program.running:
            print(f"--- output of {program.name}:", *program.lines[-60:], sep="\n")
        sys.exit(1)
    finally:
        for program in Program.running:
            program.kill()
