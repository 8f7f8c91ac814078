"""One client for each user, whatever became of the first; a second start wakes it up and ends."""

import os
import signal
import tempfile

from desktop import alertor, client_windows, second_start, starting_alertor, write_template
from farmtest import check, equal, run, wait_for

HAND_OVER = 5  # seconds that the second start may wait for the first
START = 20  # seconds for a start on a busy machine, sanitizers included


def wakes_up():
    first = alertor()
    # The icon alone, then the hint beside it: once for the start, once for the second start.
    for what in ("the hint that the client runs in the background", "the hint once more"):
        wait_for(lambda: len(client_windows()) == 2, what)
        wait_for(lambda: len(client_windows()) == 1, "the hint to go")
        if what.endswith("background"):
            second_start()
    check(first.is_running(), "the first instance is gone")
    return first


def killed_leaves_nothing(first):
    folder = os.environ["XDG_RUNTIME_DIR"]
    first.kill()
    check({"tarrow-alertor.socket", "tarrow-alertor.lock"} <= set(os.listdir(folder)), "nothing was left behind")
    first = alertor()
    second_start()
    first.quit()


def stopped_does_not_hold():
    first = alertor()
    os.kill(first.pid, signal.SIGSTOP)
    second_start(HAND_OVER + START)
    os.kill(first.pid, signal.SIGCONT)
    first.quit()


def starting_hears_of_it():
    """A second start in the middle of the first's: while a template is loaded."""
    write_template("slow.py", "import time\nprint('loading', flush=True)\ntime.sleep(2)\n")
    first = starting_alertor()
    first.expect("^loading$")
    second_start()
    equal(len(first.matching("^tarrow.app: ")), 0, "the first instance was no longer starting")
    first.expect("^tarrow.app: OpenGL ")
    first.quit()
    write_template("slow.py", "")


def of_two_at_once_one_remains():
    both = [starting_alertor(), starting_alertor()]
    wait_for(lambda: [program.is_running() for program in both].count(False) == 1, "one of two to end")
    for program in both:
        if program.is_running():
            program.expect("^tarrow.app: OpenGL ")
            program.quit()
        else:
            equal(program.exit_code(), 0, "exit code of the one that ended")


def users_do_not_meet():
    with tempfile.TemporaryDirectory() as other:
        mine, theirs = alertor(), alertor(XDG_RUNTIME_DIR=other)
        second_start()
        second_start(XDG_RUNTIME_DIR=other)
        mine.quit()
        second_start(XDG_RUNTIME_DIR=other)
        theirs.quit()


def test():
    first = wakes_up()
    killed_leaves_nothing(first)
    stopped_does_not_hold()
    starting_hears_of_it()
    of_two_at_once_one_remains()
    users_do_not_meet()


run(test)
