"""Broken messages with good events right behind them: every event is listed, or told in the log as lost."""

import re

from farmtest import EVENT, check, client, equal, farm, run

LOST = r"^tarrow\.net: Lost messages of the Dispatcher: .* in (\d+) messages from it"


def test():
    night = farm("--garbage", "--jobs", "6", "--rate", "1000", "--once")
    alertor = client(night.port)
    equal(night.exit_code(), 0, "exit code of the farm")
    garbage = night.matching(r"^garbage: ")
    equal(len(set(garbage)), 8, "kinds of garbage")
    costly = [line for line in garbage if "over 1 MiB" in line or "not inflate" in line]
    alertor.expect(LOST, len(costly))
    lost = sum(int(re.search(LOST, line).group(1)) for line in alertor.matching(LOST)) - len(costly)
    sent = int(night.expect(r"^sent (\d+) events$").group(1))
    alertor.expect(EVENT, sent - lost)
    alertor.quit()
    # Among the lost may be garbage that would have made no event.
    harmless = [line for line in garbage if re.search("unknown command|six fields|no payload", line)]
    spared = len(alertor.matching(EVENT)) - (sent - lost)
    check(0 <= spared <= len(harmless), f"{sent} events sent, {lost} messages lost, {spared} events too many listed")
    # Three of the eight kinds are worth hanging up on, at once and by the client.
    breaking = [line for line in garbage if "negative" in line or "790 MB" in line]
    equal(len(night.matching(r"log-in ")), len(breaking) + 1, "number of log-ins")
    equal(night.matching(r"did not hang up"), [], "complaints of the farm")


run(test)
