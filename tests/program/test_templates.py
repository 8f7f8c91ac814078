"""Templates receive what the farm sends them and answer over the same link; a broken one stops nobody."""

import os
import shutil
import socket

from farmtest import EVENT, client, farm, run

EXAMPLE = os.path.join(os.path.dirname(__file__), "..", "..", "docs", "examples", "hostreport.py")

BROKEN = """
TEMPLATE_ID = 13

def onCustomDispatcherMessageToAlertor(message):
    raise RuntimeError("asked " + message.decode())
"""


def test():
    folder = os.path.join(os.environ["HOME"], ".Tarrow9", "templates")
    os.makedirs(folder)
    shutil.copy(EXAMPLE, folder)
    with open(os.path.join(folder, "broken.py"), "w", encoding="utf-8") as file:
        file.write(BROKEN)

    night = farm("--custom", "13=too much", "--custom", '12={"ask": "host", "number": 3}', "--compress", "--rate", "50")
    alertor = client(night.port)
    host = socket.gethostname()
    night.expect(rf'message command=1204 param=12 size=\d+ text=.*question.*3.*host.*{host}')
    alertor.expect(r"^Failed to invoke onCustomDispatcherMessageToAlertor\(\) on template broken \(ID 13\):")
    alertor.expect(r"RuntimeError: asked too much")
    alertor.expect(EVENT)
    alertor.quit()


run(test)
