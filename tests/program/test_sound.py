"""What the user hears: the sound of each kind of event, recorded from a sound server that plays to nobody."""

import array
import base64
import os
import socket
import struct
import subprocess
import wave

from desktop import click_icon, client_windows, xdotool
from farmtest import EVENT, PATIENCE, Failure, Program, check, client, run, wait_for, windows, write_settings

RATE = 44100
WINDOW = RATE // 20
# A sound is one level, held: where several play at once, their levels add up to a number that has a bit for each.
UNIT = 1000
LEVELS = {"start": 1, "success": 2, "warning": 4, "error": 8, "service": 16}
KINDS = {"start": (4, 0), "success": (1, 1024), "warning": (1, 2048), "error": (1, 4096), "service": (512, None)}


def write_sound(kind):
    path = os.path.join(os.environ["HOME"], f"{kind}.wav")
    with wave.open(path, "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(array.array("h", [UNIT * LEVELS[kind]] * (RATE // 2)).tobytes())
    return path


def event(kind):
    number, status = KINDS[kind]
    job = "" if status is None else base64.b64encode(f"1\n7\nshot\nann\n{status}\n0\n0\n0\n0".encode()).decode()
    payload = f"{kind}\n{number}\n1700000000\nann\n{job}\n\n".encode()
    return struct.pack("<BiII", 1, len(payload), 0, 601) + payload


class SoundServer:
    """A private sound server with one null sink, and what is heard on it."""

    def __init__(self):
        address = os.path.join(os.environ["XDG_RUNTIME_DIR"], "sound")
        self.environment = {"PULSE_SERVER": f"unix:{address}"}
        Program(
            "the sound server",
            ["pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--disable-shm=yes"]
            + ["--log-target=stderr", "--load=module-null-sink sink_name=nul"]
            + [f"--load=module-native-protocol-unix socket={address} auth-anonymous=1"],
        )
        wait_for(lambda: self._run("pactl", "info").returncode == 0, "the sound server")
        self._recorder = subprocess.Popen(
            ["parec", "-d", "nul.monitor", "--format=s16le", "--channels=1", f"--rate={RATE}", "--latency-msec=50"],
            env={**os.environ, **self.environment},
            stdout=subprocess.PIPE,
        )
        self._before = set()

    def _run(self, *command):
        return subprocess.run(command, env={**os.environ, **self.environment}, capture_output=True, check=False)

    def listen_for(self, *kinds):
        """Listens until these were heard and it is silent; fails on others. A gap is no end: what was heard last may go on."""
        missing = set(kinds)
        for _ in range(20 * PATIENCE):
            data = self._recorder.stdout.read(2 * WINDOW)
            check(len(data) == 2 * WINDOW, "the recorder ended")
            sum_of_levels = round(max(array.array("h", data)) / UNIT)
            heard = {kind for kind, level in LEVELS.items() if sum_of_levels & level}
            check(heard <= self._before | set(kinds), f"heard {heard} while {kinds} were due")
            missing -= heard
            if not missing and not heard:
                self._before = set(kinds)
                return
        raise Failure(f"{missing} were not heard")

    def stop(self):
        self._recorder.kill()
        self._recorder.wait()
        self._recorder.stdout.close()


def choose_silent():
    click_icon(3, 1, lambda: len(client_windows()) == 2, "the tray menu")
    xdotool("key", "s")
    wait_for(lambda: len(client_windows()) == 1, "the menu to go")


def play_in_the_preferences(page, tabs):
    """From the list of pages, where the keys go first, to a button that plays a sound."""
    click_icon(3, 1, lambda: len(client_windows()) == 2, "the tray menu")
    xdotool("key", "c")
    wait_for(lambda: windows("Alertor Preferences"), "the preferences")
    xdotool("windowactivate", "--sync", *windows("Alertor Preferences"))
    xdotool("key", "Home", *["Down"] * page, *["Tab"] * tabs, "space")


def test():
    sounds = {f"{kind}Sound": write_sound(kind) for kind in LEVELS}
    write_settings({"behaviours": {**sounds, "filterJobStart": "false", "showBubble": "false"}})
    server = SoundServer()
    try:
        with socket.create_server(("127.0.0.1", 0)) as dispatcher:
            alertor = client(dispatcher.getsockname()[1], environment=server.environment)
            link, _ = dispatcher.accept()
        with link:
            for kind in ("service", "error", "warning", "success"):
                link.sendall(event(kind))
                server.listen_for(kind)
            link.sendall(event("start") + event("error") + event("service"))  # the start is filtered out
            server.listen_for("error", "service")
            choose_silent()
            link.sendall(event("success"))
            alertor.expect(EVENT, 7)
            choose_silent()
            link.sendall(event("warning"))
            server.listen_for("warning")
            play_in_the_preferences(1, 4)
            server.listen_for("error")
            xdotool("key", "Escape")
            alertor.quit()
    finally:
        server.stop()


run(test)
