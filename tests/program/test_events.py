"""Every event that the farm sends is listed, however it travels."""

import farmtest
from farmtest import EVENT, Program, client, equal, farm, run

WAYS = {
    "plain": ["--jobs", "5", "--rate", "400"],
    "compressed in small pieces": ["--jobs", "5", "--rate", "400", "--compress", "--fragment", "11"],
    "burst": ["--burst", "3000"],
}


def test():
    equal(Program("a farm that is called wrongly", [farmtest.FARM, "--nights"]).exit_code(), 2, "its exit code")
    for way, options in WAYS.items():
        night = farm("--once", *options)
        alertor = client(night.port)
        equal(night.exit_code(), 0, "exit code of the farm")
        sent = int(night.expect(r"^sent (\d+) events$").group(1))
        alertor.expect(EVENT, sent)
        alertor.quit()
        equal(len(alertor.matching(EVENT)), sent, f"events listed ({way})")
        equal(len(night.matching(r"log-in")), 1, "number of log-ins")


run(test)
