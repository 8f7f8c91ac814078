"""A request to end, at any moment of the start and soon after: the client ends in order and the settings stay."""

import os
import random
import signal
import sys
import threading

from desktop import READY, alertor, starting_alertor, write_template
from farmtest import check, equal, run, stored_settings, wait_for, write_settings

# The third argument, or a few for the suite.
ROUNDS = int(sys.argv[3]) if len(sys.argv) > 3 else 12


def is_caught(pid, request):
    """Before its main function runs, a program ends by the signal itself."""
    with open(f"/proc/{pid}/status", encoding="ascii") as status:
        for line in status:
            if line.startswith("SigCgt:"):
                return bool(int(line.split()[1], 16) >> (request - 1) & 1)
    return False


def longest_start():
    """Seconds until the client is up."""
    pause = threading.Event()
    program = starting_alertor()
    steps = 0
    while not program.matching(READY):
        pause.wait(0.01)
        steps += 1
        check(steps < 6000, "the client does not start")
    program.quit()
    return steps / 100


def twice_ends_at_once():
    """A template that never returns: the first request waits for it, the second does not."""
    write_template("endless.py", "import time\nprint('loading', flush=True)\nwhile True:\n    time.sleep(1)\n")
    program = starting_alertor()
    program.expect("^loading$")
    os.kill(program.pid, signal.SIGTERM)
    wait_for(lambda: not is_caught(program.pid, signal.SIGTERM), "the first request to be noted")
    os.kill(program.pid, signal.SIGTERM)
    equal(program.exit_code(), -signal.SIGTERM, "exit code after the second request")
    write_template("endless.py", "")


def test():
    # A shell ignores it for what it runs in the background, and so would the client until its main function runs.
    signal.signal(signal.SIGINT, signal.SIG_DFL)
    write_settings({"network": {"dispatcherPort": 1}, "behaviours": {"showBubble": "false"}})
    settings = stored_settings()
    moments = random.Random(9)
    span = 1.5 * longest_start()
    pause = threading.Event()
    early = 0
    for turn in range(ROUNDS):
        request = (signal.SIGTERM, signal.SIGINT)[turn % 2]
        moment = moments.uniform(0, span)
        program = starting_alertor()
        pause.wait(moment)
        caught = is_caught(program.pid, request)
        os.kill(program.pid, request)
        code = program.exit_code()
        early += code == -request
        check(code == 0 or (code == -request and not caught), f"exit code {code} of {request.name} after {moment:.3f} s")
        equal(stored_settings(), settings, f"settings of {request.name} after {moment:.3f} s")
    twice_ends_at_once()
    # What was left behind is no hindrance.
    alertor().quit()
    print(f"{turn + 1} requests over {span:.1f} s, {early} of them before the program's own code ran")


run(test)
