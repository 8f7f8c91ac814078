"""A refused log-in is told once and ends the retries."""

from farmtest import PRODUCT, check, client, equal, farm, run, wait_for, windows

# Longer than the 6.4 seconds from one attempt to the next.
RETRY_PERIOD = 8


def test():
    night = farm("--deny-login")
    alertor = client(night.port)
    night.expect(r"^client 1 log-in ")
    wait_for(lambda: len(windows(PRODUCT)) == 1, "the box that tells of the refusal")
    night.expect(r"^client 1 gone")
    check(not night.sees(r"^client 2 ", patience=RETRY_PERIOD), "the client tried again after a refusal")
    equal(len(windows(PRODUCT)), 1, "number of boxes")
    alertor.quit()
    night.quit()


run(test)
