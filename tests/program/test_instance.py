"""One client for each user, whatever became of the first; a second start wakes it up and ends."""

import os
import pwd
import signal
import tempfile

from desktop import READY, WINDOW, alertor, second_start, splash_is_up, starting_alertor, write_template, xdotool
from farmtest import check, equal, run, wait_for, windows

HAND_OVER = 5  # seconds that the second start may wait for the first
START = 20  # seconds for a start on a busy machine, sanitizers included


def put_away():
    """Without a tray a window that was put away shows who was woken up."""
    for window in wait_for(lambda: windows(WINDOW), "the window"):
        xdotool("windowminimize", window)
    wait_for(lambda: not windows(WINDOW), "the window to go to the task bar")


def woken_up():
    wait_for(lambda: windows(WINDOW), "the window that was woken up")


def killed_leaves_nothing():
    folder = os.environ["XDG_RUNTIME_DIR"]
    alertor().kill()
    check({"tarrow-alertor.socket", "tarrow-alertor.lock"} <= set(os.listdir(folder)), "nothing was left behind")
    first = alertor()
    put_away()
    second_start()
    woken_up()
    first.quit()


def stopped_does_not_hold():
    first = alertor()
    put_away()
    os.kill(first.pid, signal.SIGSTOP)
    second_start(HAND_OVER + START)
    os.kill(first.pid, signal.SIGCONT)
    woken_up()
    first.quit()


def starting_hears_of_it():
    """A second start in the middle of the first's: while a template is loaded."""
    gate = os.path.join(os.environ["HOME"], "gate")
    os.mkfifo(gate)
    write_template("slow.py", f"print('loading', flush=True)\nopen({gate!r}).read()\n")
    first = starting_alertor()
    first.expect("^loading$")
    second_start()
    equal(len(first.matching("^tarrow.app: ")), 0, "the first instance was no longer starting")
    open(gate, "w", encoding="utf-8").close()
    first.expect(READY)
    wait_for(lambda: not splash_is_up(), "the splash to close")
    woken_up()
    first.quit()
    write_template("slow.py", "")


def of_two_at_once_one_remains():
    both = [starting_alertor(), starting_alertor()]
    wait_for(lambda: [program.is_running() for program in both].count(False) == 1, "one of two to end")
    for program in both:
        if program.is_running():
            program.expect(READY)
            program.quit()
        else:
            equal(program.exit_code(), 0, "exit code of the one that ended")


def laid_folder_is_not_entered():
    """Without a runtime folder of the session: what another laid where it would be made must not be trusted."""
    with tempfile.TemporaryDirectory() as shared:
        theirs = os.path.join(shared, "theirs")
        os.mkdir(theirs, 0o700)
        os.symlink(theirs, os.path.join(shared, "runtime-" + pwd.getpwuid(os.geteuid()).pw_name))
        without = {"XDG_RUNTIME_DIR": "", "TMPDIR": shared}
        first = alertor(**without)
        put_away()
        second_start(**without)
        woken_up()
        equal(os.listdir(theirs), [], "what was left in the folder of another")
        first.quit()


def test():
    killed_leaves_nothing()
    stopped_does_not_hold()
    starting_hears_of_it()
    of_two_at_once_one_remains()
    laid_folder_is_not_entered()


run(test)
