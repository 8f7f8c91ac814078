"""The desktop as the user's hands and eyes meet it: windows, the tray, the mouse."""

import os
import subprocess

import farmtest
from farmtest import PATIENCE, Failure, Program, equal, wait_for, windows

WINDOW = "Tarrow Alertor"
READY = r"^tarrow\.app: OpenGL "


def xdotool(*arguments):
    result = subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True, check=False)
    return result.stdout.split()


def write_template(name, text):
    """A template in the home of this test: loading it is a moment of the start to stop at."""
    folder = os.path.join(os.environ["HOME"], ".Tarrow9", "templates")
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
        file.write(text)


def splash_is_up():
    types = [["xprop", "-id", window, "_NET_WM_WINDOW_TYPE"] for window in client_windows()]
    return any(
        "_TYPE_SPLASH" in subprocess.run(command, capture_output=True, text=True, check=False).stdout for command in types
    )


def alertor(*options, **environment):
    """The client with nobody to connect to, once it has started: probed OpenGL, then closed its splash."""
    program = starting_alertor(*options, **environment)
    program.expect(READY)
    wait_for(lambda: not splash_is_up(), "the splash to close")
    return program


def starting_alertor(*options, **environment):
    return Program(
        "the client",
        [farmtest.CLIENT, "-port", "1", *options],
        {"QT_LOGGING_RULES": "tarrow.app.debug=true;tarrow.notify.info=true", **environment},
    )


def second_start(limit=PATIENCE, **environment):
    """Starts the client while one runs already; it has to end in order within so many seconds."""
    program = subprocess.Popen([farmtest.CLIENT, "-port", "1"], env={**os.environ, **environment})
    try:
        equal(program.wait(limit), 0, "exit code of the second start")
    except subprocess.TimeoutExpired:
        raise Failure(f"the second start took longer than {limit} seconds") from None
    finally:
        program.kill()
        program.wait()


def tray():
    """A system tray; its icon is there once icon_position() is."""
    options = "--edge bottom --align right --widthtype request --height 24 --SetDockType true"
    return Program("the tray", ["trayer", *options.split()])


def icon_position():
    """Where the only icon of the tray is, None while there is none. A tray without icons is no wider than its frame."""
    for window in xdotool("search", "--onlyvisible", "--class", "^trayer$"):
        values = dict(line.split("=") for line in xdotool("getwindowgeometry", "--shell", window))
        x, y, width, height = (int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))
        if width >= height >= 16:
            return x + width // 2, y + height // 2
    return None


def click_icon(button, times, condition, what):
    """Clicks until the condition holds, as a user would: an icon that has just come may be on its way to its place.
    Wants the bubbles off: their arrow covers the icon."""
    for attempt in range(4):
        x, y = wait_for(icon_position, "the icon in the tray")
        xdotool("mousemove", x, y, "click", "--repeat", times, "--delay", 60, button)
        try:
            return wait_for(condition, what, PATIENCE // 6)
        except Failure:
            if attempt == 3:
                raise


def choose_in_menu(key):
    """Opens the menu of the button that stands in for the tray, and presses the key."""
    shown = client_windows()
    xdotool("windowactivate", "--sync", windows(WINDOW)[-1])
    xdotool("key", "alt+m")
    wait_for(lambda: client_windows() - shown, "the menu of the button")
    xdotool("key", key)


def client_windows():
    """The client's visible windows, its icon in the tray included."""
    return set(xdotool("search", "--onlyvisible", "--classname", "^tarrow-alertor$"))
