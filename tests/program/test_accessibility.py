"""The windows without eyes and without a mouse: names, roles, the way round with Tab, states that are words."""

import os
import sys

import accessible
import farmtest
from desktop import WINDOW, alertor, choose_in_menu, xdotool
from farmtest import EVENT, SETTINGS_FILE, Program, check, equal, farm, run, wait_for, windows, write_settings


PAGES = 4
SETUP = "Set up the connection"


def walk(title):
    top = accessible.window(title)
    accessible.every_control_is_named(top)
    accessible.every_control_is_reached_by_tab(top)


def viewer_is_walked():
    for number in range(1, 4):
        with open(os.path.join(os.environ["HOME"], f"frame.{number:04}.ppm"), "wb") as file:
            file.write(b"P6 64 48 255\n" + bytes(64 * 48 * 3))
    title = "Images viewer"
    program = Program("the viewer", [sys.argv[3], file.name], accessible.ENVIRONMENT)
    wait_for(lambda: windows(title), "the viewer")
    xdotool("search", "--name", title, "windowactivate", "--sync", "key", "ctrl+l")
    top = accessible.window(title)
    wait_for(lambda: "slider" in {part.getRoleName() for part in accessible.shown_controls(top)}, "the calibration")
    walk(title)
    # Budgets as they are stored: no frame goes to video memory, one of 9,216 bytes to the other.
    usage = "VRAM Cache Usage: 0.00% RAM Cache Usage: 10.00% "
    check(usage in [part.name for part in accessible.shown_controls(top)], "the use of memory")
    program.kill()


def first_start_is_walked():
    os.remove(SETTINGS_FILE)
    program = Program("the client", [farmtest.CLIENT], accessible.ENVIRONMENT)
    wait_for(lambda: windows(SETUP), "the window that asks for the connection")
    walk(SETUP)
    program.quit()


def test():
    budgets = {"imageViewerMaxGPUCache": 0, "imageViewerMaxRAMCache": 92160}
    write_settings({"behaviours": {"showBubble": "false", "autoAckOnRaise": "false"}, "imageViewer": budgets,
                    "viewer": {"readAhead": "false"}})
    night = farm("--jobs", "1", "--rate", "400", "--once")
    program = alertor("-server", "127.0.0.1", "-port", str(night.port), **accessible.ENVIRONMENT)
    program.expect(EVENT, int(night.expect(r"^sent (\d+) events$").group(1)))
    walk(WINDOW)
    choose_in_menu("c")
    xdotool("key", "Home")
    for _page in range(PAGES):
        walk("Alertor Preferences")  # and back to the list of pages
        xdotool("key", "Down")
    xdotool("key", "Escape")
    program.quit()
    viewer_is_walked()
    first_start_is_walked()


run(test)
