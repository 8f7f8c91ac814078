"""The window and the icon on a desktop without a tray, with one that comes late, and with one that dies."""

import os
import subprocess

from desktop import WINDOW, alertor, choose_in_menu, click_icon, client_windows, icon_position, second_start, tray, xdotool
from farmtest import check, equal, run, wait_for, windows, write_settings

TITLE = f"^{WINDOW}$"


def state_of_window():
    """What the window manager knows of the states of the windows with the title: the closed splash may be one more."""
    found = [["xprop", "-id", window, "WM_STATE", "_NET_WM_STATE"] for window in xdotool("search", "--name", TITLE)]
    return "".join(subprocess.run(command, capture_output=True, text=True, check=False).stdout for command in found)


def close_window():
    xdotool("search", "--onlyvisible", "--name", TITLE, "windowactivate", "--sync")
    xdotool("key", "alt+F4")


def without_a_tray():
    wait_for(lambda: windows(WINDOW), "the window")
    shown = client_windows()
    choose_in_menu("Escape")
    wait_for(lambda: client_windows() == shown, "the menu to go")
    close_window()
    wait_for(lambda: "_NET_WM_STATE_HIDDEN" in state_of_window(), "the window to go to the task bar")
    check("Iconic" in state_of_window(), "the window was withdrawn: nobody finds it again")
    second_start()
    wait_for(lambda: windows(WINDOW) and "HIDDEN" not in state_of_window(), "the window once more")


def with_a_tray():
    """From a shown window to a hidden one and back again, by the icon alone."""
    wait_for(lambda: windows(WINDOW), "the window")
    close_window()
    wait_for(lambda: not windows(WINDOW), "the window to hide")
    icon = client_windows()
    equal(len(icon), 1, "number of visible windows")
    click_icon(3, 1, lambda: len(client_windows()) == 2, "the tray menu")
    xdotool("key", "Escape")
    wait_for(lambda: client_windows() == icon, "the menu to go")
    click_icon(1, 2, lambda: windows(WINDOW), "the window after a double click")


def brings_its_fonts():
    """Where the system has none, texts are letters all the same: their edges are smooth, in many colours."""
    none = os.path.join(os.environ["HOME"], "fonts.conf")
    with open(none, "w", encoding="utf-8") as file:
        file.write("<fontconfig/>")
    program = alertor(FONTCONFIG_FILE=none)
    window = wait_for(lambda: windows(WINDOW), "the window")[-1]
    command = ["import", "-window", window, "-format", "%k", "info:"]
    colours = int(subprocess.run(command, capture_output=True, check=True, text=True).stdout)
    check(colours > 40, f"the window without fonts has {colours} colours")
    program.quit()


def test():
    write_settings({"behaviours": {"showBubble": "false"}})
    brings_its_fonts()
    program = alertor()
    without_a_tray()
    for _ in range(2):
        first = tray()
        wait_for(icon_position, "the icon in the tray that came")
        with_a_tray()
        first.kill()
        wait_for(lambda: not icon_position(), "the icon to go with its tray")
    close_window()
    wait_for(lambda: "Iconic" in state_of_window(), "the window in the task bar, now that the tray is gone")
    second_start()
    last = tray()
    wait_for(icon_position, "the icon in the last tray")
    wait_for(lambda: windows(WINDOW), "the window, now that there is a tray")
    close_window()
    wait_for(lambda: not windows(WINDOW), "the window to hide in the last tray")
    last.kill()
    wait_for(lambda: windows(WINDOW), "the window, now that its tray has died")
    program.quit()


run(test)
