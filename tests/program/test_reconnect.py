"""The client waits for a farm that is not there yet, and comes back to one that went away."""

from farmtest import EVENT, client, equal, farm, run


def farm_comes_and_goes():
    night = farm("--jobs", "0", "--rate", "20")
    port = night.port
    night.kill()
    alertor = client(port)
    for listed in (20, 40):
        night = farm("--jobs", "0", "--rate", "20", port=port)
        night.expect(r"^client 1 log-in ")
        alertor.expect(EVENT, listed)
        night.kill()
    alertor.quit()


def farm_hangs_up():
    night = farm("--jobs", "3", "--rate", "100", "--drop-after", "0.1", "--once")
    alertor = client(night.port)
    # The night is longer than one visit, and waits for the next.
    night.expect(r"^client 2 log-in ")
    alertor.expect(EVENT, int(night.expect(r"^client 1 gone after (\d+) events$").group(1)) + 1)
    alertor.quit()
    night.quit()


def test():
    farm_comes_and_goes()
    farm_hangs_up()


run(test)
