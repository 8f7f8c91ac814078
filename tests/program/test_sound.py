"""What the user hears: the sound of each kind of event, recorded from a sound server that plays to nobody."""

import array
import math
import os
import subprocess
import wave

from farmtest import PATIENCE, Failure, Program, check, client, farm, run, wait_for, write_settings

RATE = 44100
START_TONE = 1000
SUCCESS_TONE = 1700
OTHER_TONE = 2600
WINDOW = RATE // 20


def write_tone(name, frequency, seconds=0.4):
    path = os.path.join(os.environ["HOME"], name)
    samples = array.array(
        "h", (int(12000 * math.sin(2 * math.pi * frequency * i / RATE)) for i in range(int(RATE * seconds)))
    )
    with wave.open(path, "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(samples.tobytes())
    return path


def share_of(frequency, samples):
    """Share of the samples' power at that frequency, 0 to 1; 0 for silence."""
    power = sum(sample * sample for sample in samples)
    if power < 100 * 100 * len(samples):
        return 0
    real = sum(s * math.cos(2 * math.pi * frequency * i / RATE) for i, s in enumerate(samples))
    imaginary = sum(s * math.sin(2 * math.pi * frequency * i / RATE) for i, s in enumerate(samples))
    return 2 * (real * real + imaginary * imaginary) / (len(samples) * power)


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

    def _run(self, *command):
        return subprocess.run(command, env={**os.environ, **self.environment}, capture_output=True, check=False)

    def window(self):
        """The next twentieth of a second."""
        data = self._recorder.stdout.read(2 * WINDOW)
        if len(data) < 2 * WINDOW:
            raise Failure("the recorder ended")
        samples = array.array("h")
        samples.frombytes(data)
        return samples

    def listen_for(self, frequency):
        """Listens until the tone is heard; fails when another one is."""
        for _ in range(20 * PATIENCE):
            samples = self.window()
            if share_of(frequency, samples) > 0.8:
                return
            for other in {START_TONE, SUCCESS_TONE, OTHER_TONE} - {frequency}:
                check(share_of(other, samples) < 0.8, f"heard {other} Hz instead of {frequency} Hz")
        raise Failure(f"{frequency} Hz were not heard")

    def stop(self):
        self._recorder.kill()
        self._recorder.wait()
        self._recorder.stdout.close()


def test():
    other = write_tone("other.wav", OTHER_TONE)
    write_settings(
        {
            "behaviours": {
                "startSound": write_tone("start.wav", START_TONE),
                "successSound": write_tone("success.wav", SUCCESS_TONE),
                "warningSound": other,
                "errorSound": other,
                "serviceSound": other,
                "filterChunkStart": "false",
            }
        }
    )
    server = SoundServer()
    try:
        check(max(map(abs, server.window())) == 0, "there is sound before there is an event")
        # A job starts, then its first chunk completes; the chunk's start is filtered out and must not be heard.
        night = farm("--jobs", "1", "--rate", "0.5")
        alertor = client(night.port, environment=server.environment)
        server.listen_for(START_TONE)
        while share_of(START_TONE, server.window()) > 0.1:
            pass
        server.listen_for(SUCCESS_TONE)
        alertor.quit()
        night.quit()
    finally:
        server.stop()


run(test)
