"""The session bus dies under the client: the link, the list and the orderly end do not need it."""

from desktop import READY
from farmtest import EVENT, Program, client, farm, run


def test():
    bus = Program("the session bus", ["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"])
    address = bus.expect(r"^(unix:\S+)$").group(1)
    night = farm("--jobs", "0", "--rate", "20")
    environment = {"DBUS_SESSION_BUS_ADDRESS": address, "QT_LOGGING_RULES": "tarrow.app.debug=true;tarrow.notify.info=true"}
    alertor = client(night.port, environment=environment)
    alertor.expect(READY)
    alertor.expect(EVENT)
    bus.kill()
    alertor.expect(EVENT, len(alertor.matching(EVENT)) + 40)
    alertor.quit()
    night.quit()


run(test)
