"""Settings that cannot be saved, on a disk that is full and on one that is read-only: told once, and the old file stays.

The disk is mounted for the client alone, which takes a system that lets users do so."""

import os
import signal

import farmtest
from desktop import READY, WINDOW, choose_in_menu, xdotool
from farmtest import PRODUCT, SETTINGS_FILE, Program, check, equal, run, wait_for, windows, write_settings

TEXT = b"[network]\ndispatcherPort=1\n"
DISKS = {
    "full": 'mount -t tmpfs -o size=32k none "$0" && printf %s "$1" > "$2"; cat /dev/zero > "$0/other" 2>/dev/null',
    "read-only": 'mount -t tmpfs none "$0" && printf %s "$1" > "$2" && mount -o remount,ro "$0"',
}


def client_on(disk):
    """The client where its settings folder is such a disk."""
    script = f'{{ {DISKS[disk]}; }}; exec "$3"'
    arguments = [os.path.dirname(SETTINGS_FILE), TEXT.decode(), SETTINGS_FILE, farmtest.CLIENT]
    command = ["unshare", "--map-root-user", "--mount", "sh", "-c", script, *arguments]
    return Program("the client", command, {"QT_LOGGING_RULES": "tarrow.app.debug=true"})


def accept_the_preferences():
    wait_for(lambda: windows(WINDOW), "the window")
    choose_in_menu("c")
    wait_for(lambda: windows("Alertor Preferences"), "the preferences")
    xdotool("search", "--onlyvisible", "--name", "^Alertor Preferences$", "windowactivate", "--sync")
    xdotool("key", "Return")


def test():
    write_settings({"network": {"dispatcherPort": "1"}})
    for disk in DISKS:
        program = client_on(disk)
        program.expect(READY)
        inside = f"/proc/{program.pid}/root{SETTINGS_FILE}"
        accept_the_preferences()
        wait_for(lambda: windows(PRODUCT), f"the box that tells of a {disk} disk")
        with open(inside, "rb") as file:
            equal(file.read(), TEXT, f"settings on a {disk} disk")
        equal(len(program.matching("Cannot save the settings to ")), 1, f"warnings of a {disk} disk")
        check(program.is_running(), f"the client ended on a {disk} disk")
        program.quit(signal.SIGINT)


run(test)
