"""The whole-program tests' means, for the tests of faults."""

import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "program"))

SETTINGS_FILE = os.path.join(os.environ["XDG_CONFIG_HOME"], "Loomwright", "Tarrow\\9\\Alertor.conf")


def rounds(brief):
    """How often to try: the third argument of the script, or a few times for the suite."""
    return int(sys.argv[3]) if len(sys.argv) > 3 else brief


def stored_settings():
    with open(SETTINGS_FILE, "rb") as file:
        return file.read()
