"""The client waits for a farm that is not there yet, and comes back to one that hangs up."""

from farmtest import EVENT, client, farm, run


def test():
    gone = farm()
    gone.kill()
    alertor = client(gone.port)
    night = farm("--jobs", "3", "--rate", "100", "--drop-after", "0.1", "--once", port=gone.port)
    # The night is longer than one visit, and waits for the next.
    night.expect(r"^client 2 log-in ")
    alertor.expect(EVENT, int(night.expect(r"^client 1 gone after (\d+) events$").group(1)) + 1)
    alertor.quit()
    night.quit()


run(test)
