"""Broken frames between good ones cost the client a buffer or a link, never an event that came whole."""

from farmtest import EVENT, client, equal, farm, run


def test():
    night = farm("--garbage", "--jobs", "4", "--rate", "1000", "--once")
    alertor = client(night.port)
    equal(night.exit_code(), 0, "exit code of the farm")
    sent = int(night.expect(r"^sent (\d+) events$").group(1))
    alertor.expect(EVENT, sent)
    alertor.quit()
    equal(len(alertor.matching(EVENT)), sent, "events listed")
    # Two of the six kinds of garbage are worth hanging up on, at once and by the client.
    equal(len(set(night.matching(r"^garbage: "))), 6, "kinds of garbage")
    equal(len(night.matching(r"log-in ")), 3, "number of log-ins")
    equal(night.matching(r"did not hang up"), [], "complaints of the farm")


run(test)
