#!/usr/bin/env bash
# scripts/isolated.sh [--display] [--tray] [--screen WIDTHxHEIGHT] -- command...
#
# Runs a command that can neither read nor change the user's settings, and takes everything it started away again.
#   --display  gives it an X server and a window manager of its own; without it Qt draws off screen
#   --tray     gives it a system tray too (implies --display)
#   --screen   gives it a screen of that size (implies --display)
# Ends with the command's status. Any number of these may run side by side.
set -u

usage() {
    sed -n '2,8s/^# \{0,1\}//p' "$0"
}

die() {
    echo "isolated.sh: $*" >&2
    exit 125
}

display=no
tray=no
screen=1280x800
while [ $# -gt 0 ]; do
    case $1 in
        --display) display=yes ;;
        --tray) display=yes tray=yes ;;
        --screen) [ $# -gt 1 ] || { usage >&2; exit 125; }; display=yes screen=$2; shift ;;
        --help) usage; exit 0 ;;
        --) shift; break ;;
        *) usage >&2; exit 125 ;;
    esac
    shift
done
[ $# -gt 0 ] || { usage >&2; exit 125; }

work=$(mktemp -d "${TMPDIR:-/tmp}/tarrow.XXXXXX") || die "no temporary folder"
servers=()
command_group=

cleanup() {
    trap '' INT TERM HUP
    # The command leads a process group of its own: what it left behind goes with it.
    [ -z "$command_group" ] || kill -KILL -- "-$command_group" 2>/dev/null
    for pid in ${servers[@]+"${servers[@]}"}; do
        kill -TERM "$pid" 2>/dev/null
    done
    wait
    rm -rf "$work"
}
trap cleanup EXIT

# A signal goes to the command, which gets a moment to end in order.
stop_command() {
    local signal=$1 status=$2 waited=0
    if [ -n "$command_group" ]; then
        kill "-$signal" -- "-$command_group" 2>/dev/null
        while kill -0 "$command_group" 2>/dev/null && [ $((waited++)) -lt 50 ]; do
            sleep 0.1
        done
    fi
    exit "$status"
}
trap 'stop_command TERM 143' TERM
trap 'stop_command INT 130' INT
trap 'stop_command HUP 129' HUP

# Polls a condition for ten seconds at most.
wait_until() {
    local what=$1 tries=0
    shift
    until "$@" >/dev/null 2>&1; do
        [ $((tries += 1)) -le 200 ] || die "$what did not come up; its output: $(cat "$work"/*.log 2>/dev/null)"
        sleep 0.05
    done
}

start_server() {
    local name=$1
    shift
    "$@" >"$work/$name.log" 2>&1 </dev/null &
    servers+=($!)
}

window_manager_runs() {
    xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}

tray_runs() {
    /usr/bin/python3 - <<'PYTHON'
import ctypes
import sys

x11 = ctypes.CDLL("libX11.so.6")
x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XInternAtom.restype = ctypes.c_ulong
x11.XGetSelectionOwner.restype = ctypes.c_ulong
connection = x11.XOpenDisplay(None)
if not connection:
    sys.exit(1)
atom = x11.XInternAtom(ctypes.c_void_p(connection), b"_NET_SYSTEM_TRAY_S0", 0)
sys.exit(0 if x11.XGetSelectionOwner(ctypes.c_void_p(connection), ctypes.c_ulong(atom)) else 1)
PYTHON
}

start_display() {
    unset QT_QPA_PLATFORM
    # Xvfb writes the number of the display that it found free.
    start_server xvfb bash -c 'exec Xvfb -displayfd 3 -screen 0 "$1x24" +extension GLX -nolisten tcp -noreset 3>"$0"' \
        "$work/display" "$screen"
    wait_until "the X server" grep -q . "$work/display"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    start_server openbox openbox --sm-disable
    wait_until "the window manager" window_manager_runs
    if [ "$tray" = yes ]; then
        start_server trayer trayer --edge bottom --align right --widthtype request --height 24 --SetDockType true
        wait_until "the tray" tray_runs
    fi
}

mkdir -m 700 "$work/home" "$work/config" "$work/cache" "$work/data" "$work/run" "$work/tmp"
export HOME=$work/home XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache XDG_DATA_HOME=$work/data
export XDG_RUNTIME_DIR=$work/run TMPDIR=$work/tmp
export DBUS_SESSION_BUS_ADDRESS=disabled: LC_ALL=C.UTF-8
# No sound server is to be started on the command's behalf.
echo 'autospawn = no' >"$work/pulse-client.conf"
export PULSE_CLIENTCONFIG=$work/pulse-client.conf
unset DISPLAY XAUTHORITY WAYLAND_DISPLAY XDG_SESSION_TYPE XDG_CURRENT_DESKTOP SESSION_MANAGER PULSE_SERVER
unset LANGUAGE QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME QT_SCALE_FACTOR QT_LOGGING_RULES

if [ "$display" = yes ]; then
    start_display
else
    export QT_QPA_PLATFORM=offscreen
fi

# A shell without job control would leave the command without its standard input.
setsid -- "$@" <&0 &
command_group=$!
wait "$command_group"
status=$?
exit "$status"
