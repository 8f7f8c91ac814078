"""What the start prints and finds, and that the client ends in order whatever it is doing."""

import os
import re
import signal
import subprocess

import farmtest
from desktop import alertor, click_icon, client_windows, second_start, splash_is_up, starting_alertor, write_template, xdotool
from farmtest import PATIENCE, PRODUCT, VERSION, check, equal, farm, run, stored_settings, wait_for, windows, write_settings

SETTINGS = {"network": {"dispatcherPort": 1}, "behaviours": {"showBubble": "false"}}


def texts_need_no_display():
    environment = {key: value for key, value in os.environ.items() if key not in ("DISPLAY", "QT_QPA_PLATFORM")}
    for option, wanted in (
        ("--version", f"tarrow-alertor {VERSION} (build 11480)\n"),
        ("--help", "Usage: tarrow-alertor"),
    ):
        result = subprocess.run(
            [farmtest.CLIENT, option], env=environment, capture_output=True, timeout=PATIENCE, text=True, check=False
        )
        check(result.stdout.startswith(wanted), f"{option} prints {result.stdout!r}")
        equal((result.returncode, result.stderr), (0, ""), f"exit code and errors of {option}")


def opengl_is_probed():
    old = {"MESA_GL_VERSION_OVERRIDE": "2.1", "MESA_GLSL_VERSION_OVERRIDE": "120"}
    compatibility = ["Supports 3.2 profile: No", "Setting default openGL format to compatibility profile 2.1"]
    for options, environment, decisions in (
        ((), {}, []),
        (("-forcegl2",), {}, compatibility),
        ((), old, compatibility),
        ((), {"QT_XCB_GL_INTEGRATION": "none"}, ["OpenGL not supported. Image viewer disabled."]),
    ):
        program = alertor(*options, **environment)
        program.quit()
        ours = [line for line in program.lines if line.startswith("tarrow.app: ")]
        # Of an old driver and of none at all the toolkit complains itself; a slow start tries to connect.
        complaints = r"^QXcbIntegration: Cannot create platform OpenGL|global shared context|^tarrow\.net: .*not connected"
        others = [line for line in program.lines if line not in ours and not re.search(complaints, line)]
        equal(others, [], f"further lines with {options} {environment}")
        lines = [line.removeprefix("tarrow.app: ") for line in ours]
        found = [line for line in lines if line.startswith("OpenGL ") and "not supported" not in line]
        equal([line for line in lines if line not in found], decisions, f"lines with {options} {environment}")
        wanted = ["default profile", "default profile type", "versions", "vendor", "renderer"]
        names = [line.removeprefix("OpenGL ").split(":")[0] for line in found]
        equal(names, [] if "QT_XCB_GL_INTEGRATION" in environment else wanted, f"found with {options} {environment}")


def a_second_start_gives_the_hint_again():
    first = alertor()
    # The icon alone, then the hint beside it: once for the start, once for the second start.
    wait_for(lambda: len(client_windows()) == 2, "the hint that the client runs in the background")
    wait_for(lambda: len(client_windows()) == 1, "the hint to go")
    second_start()
    wait_for(lambda: len(client_windows()) == 2, "the hint once more")
    first.quit()


def screen_without_panel():
    return subprocess.run(["import", "-window", "root", "-crop", "1280x700+0+0", "ppm:-"], capture_output=True, check=True).stdout


def during_the_splash():
    gate = os.path.join(os.environ["HOME"], "gate")
    os.mkfifo(gate)
    loading = "import os, time\nprint('loading', flush=True)\n"
    write_template("slow.py", loading + f"open({gate!r}).read()\n")
    write_template("then.py", loading + f"os.remove({gate!r})\ntime.sleep(1)\n")
    # The splash tells of this one next, and handles what has come meanwhile.
    write_template("usual.py", "")
    program = starting_alertor()
    program.expect("^loading$")
    wait_for(splash_is_up, "the splash")
    naming_the_first = screen_without_panel()
    open(gate, "w", encoding="utf-8").close()
    program.expect("^loading$", 2)
    check(screen_without_panel() != naming_the_first, "the splash does not name the template that is loaded")
    return program


def with_a_box_open():
    for name in ("slow.py", "then.py"):
        write_template(name, "")
    night = farm("--deny-login")
    program = alertor("-port", str(night.port))
    wait_for(lambda: windows(PRODUCT), "the box that tells of the refusal")
    night.quit()
    return program


def with_a_dialog_open():
    program = with_the_menu_open()
    xdotool("key", "c")
    wait_for(lambda: windows("Alertor Preferences"), "the preferences")
    return program


def with_the_menu_open():
    program = alertor()
    wait_for(lambda: len(client_windows()) == 1, "the icon")
    click_icon(3, 1, lambda: len(client_windows()) == 2, "the tray menu")
    return program


def test():
    texts_need_no_display()
    opengl_is_probed()
    a_second_start_gives_the_hint_again()
    write_settings(SETTINGS)
    settings = stored_settings()
    for moment in during_the_splash, with_a_box_open, with_a_dialog_open, with_the_menu_open:
        for request in signal.SIGTERM, signal.SIGINT:
            moment().quit(request)
            equal(stored_settings(), settings, f"settings after {request.name} {moment.__name__}")


run(test)
