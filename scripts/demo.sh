#!/usr/bin/env bash
# scripts/demo.sh [--pictures]
#
# Installs what is missing, builds the client and the demo farm and runs them together: on a desktop until you quit
# the client. Without a display, or with --pictures, it runs itself under an X server of its own, lets the farm play a
# night, saves pictures under build/demo/ and ends with 0 when everything that was sent arrived.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

bin=$root/build/release/bin
out=$root/build/demo
farm_pid=
client_pid=
view_pid=

stop_everything() {
    trap '' INT TERM
    local pid
    for pid in $client_pid $farm_pid $view_pid; do
        kill "$pid" 2>/dev/null || true
    done
    wait
}
trap stop_everything EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# wait_for SECONDS WHAT COMMAND...: polls a condition.
wait_for() {
    local tries=$(($1 * 10)) what=$2
    shift 2
    until "$@" >/dev/null 2>&1; do
        [ $((tries -= 1)) -gt 0 ] || fail "waited in vain for $what; see the logs in $out"
        sleep 0.1
    done
}

start_farm() {
    "$bin/tarrow-demofarm" --port 0 "$@" >"$out/farm.log" 2>&1 </dev/null &
    farm_pid=$!
    wait_for 10 "the demo farm" grep -q '^listening on ' "$out/farm.log"
    farm_port=$(sed -n 's/^listening on //p' "$out/farm.log")
}

start_client() {
    # One line on standard error for every event that the client keeps.
    QT_LOGGING_RULES='tarrow.notify.info=true' "$bin/tarrow-alertor" -server 127.0.0.1 -port "$farm_port" \
        -user "${USER:-demo}" -pass demo >"$out/client.log" 2>&1 </dev/null &
    client_pid=$!
}

arrived() {
    grep -c '^tarrow\.notify: event ' "$out/client.log" || true
}

sent() {
    sed -n 's/^sent \([0-9]*\) events$/\1/p' "$out/farm.log"
}

all_arrived() {
    [ "$(arrived)" -ge "$(sent)" ]
}

# Settings of the demo's own: the user's stay as they are.
play_on_desktop() {
    export XDG_CONFIG_HOME=$out/config
    start_farm --jobs 0 --rate 1
    start_client
    say "The client sits in the system tray: right-click its icon for the menu, choose Quit to end the demo"
    wait "$client_pid" || fail "the client ended with status $?; its output is $out/client.log"
    client_pid=
    grep -q ' log-in ' "$out/farm.log" \
        || fail "the client did not log in: if another one runs, quit it first; its output is $out/client.log"
    kill "$farm_pid"
    wait "$farm_pid" || true
    say "$(sent) events were sent, $(arrived) arrived"
}

# The client has so many visible windows, its icon in the tray included.
has_windows() {
    [ "$(xdotool search --onlyvisible --classname '^tarrow-alertor$' | wc -l)" = "$1" ]
}

# open_tray_menu WINDOWS: wants to know how many windows there are without the menu.
open_tray_menu() {
    local X Y HEIGHT WINDOW
    # Its arrow covers the icon.
    wait_for 20 "the bubble to go" has_windows "$1"
    WINDOW=$(xdotool search --onlyvisible --class '^trayer$' | tail -n 1)
    eval "$(xdotool getwindowgeometry --shell "$WINDOW")"
    xdotool mousemove $((X + HEIGHT / 2)) $((Y + HEIGHT / 2)) click 3
    wait_for 10 "the tray menu" has_windows $(($1 + 1))
}

# A picture that shows what was just asked for has to wait until it is drawn.
picture() {
    sleep 0.7
    import -window "$1" "$out/$2.png"
}

# list_row PATTERN: the row of the first event whose message matches, from 1, and its message.
list_row() {
    local row
    # Read to the end: who stops early breaks the pipe.
    row=$(sed -n 's/^tarrow\.notify: event [0-9]* type [0-9]* "\(.*\)"$/\1/p' "$out/client.log" \
        | awk -v pattern="$1" '!found && $0 ~ pattern { print NR ":" $0; found = 1 }')
    [ -n "$row" ] || fail "no event of the night says $1"
    echo "$row"
}

viewer_windows() {
    xdotool search --onlyvisible --name '^Images viewer'
}

# The newest viewer, where it is seen whole.
place_viewer() {
    wait_for 20 "a viewer" viewer_windows
    window=$(viewer_windows | tail -n 1)
    xdotool windowmove --sync "$window" 60 30 windowsize --sync "$window" 1100 700 windowfocus --sync "$window"
}

close_viewer() {
    xdotool windowfocus --sync "$window" key alt+F4
    wait_for 10 "the viewer to close" has_windows 1
}

# open_frames ROW: of the event in that row of the list.
open_frames() {
    local list X Y WINDOW
    list=$(xdotool search --onlyvisible --name '^Tarrow Alertor$' | tail -n 1)
    eval "$(xdotool getwindowgeometry --shell "$list")"
    xdotool windowfocus --sync "$list" mousemove $((X + 200)) $((Y + 100)) click 1
    xdotool key Home
    [ "$1" -eq 1 ] || xdotool key --delay 5 --repeat $(($1 - 1)) Down
    xdotool key Menu
    wait_for 10 "the list's menu" has_windows 3
    xdotool key f
    wait_for 20 "a viewer" viewer_windows
    hide_list
    place_viewer
}

list_hidden() {
    ! xdotool search --onlyvisible --name '^Tarrow Alertor$' >/dev/null
}

# The list stays on top of all others.
hide_list() {
    xdotool search --onlyvisible --name '^Tarrow Alertor$' windowfocus --sync key Escape
    wait_for 10 "the list to hide" list_hidden
}

# From the open tray menu.
show_list() {
    xdotool key r
    wait_for 10 "the window" xdotool search --onlyvisible --name '^Tarrow Alertor$'
}

# steps_to_gap FOLDER FIRST: from the first frame of a chunk to the one that its renderer never wrote.
steps_to_gap() {
    local steps=0 by=1 frame=$((10#$2))
    there() { [ -f "$1/beauty.$(printf %04d "$2").exr" ]; }
    there "$1" $((frame + 1)) || by=2
    while there "$1" "$frame"; do
        frame=$((frame + by))
        steps=$((steps + 1))
    done
    echo "$steps"
}

take_viewer_pictures() {
    local window row first name mask
    row=$(list_row '^Job .* failed')
    open_frames "${row%%:*}"
    picture "$window" viewer
    xdotool key space
    sleep 2
    picture "$window" viewer-playing
    xdotool key space key F11
    picture root viewer-full-screen
    xdotool key Escape
    close_viewer

    open_tray_menu 1
    show_list
    row=$(list_row '^Frames .* failed')
    first=$(expr "$row" : '.*Frames \([0-9]*\)-')
    name=$(expr "$row" : '.* of \(.*\) failed')
    mask=$(find "$(sed -n 's/^frames in //p' "$out/farm.log")" -type d -name "$name" | head -n 1)/beauty.####.exr
    open_frames "${row%%:*}"
    xdotool key --delay 200 --repeat "$(steps_to_gap "$(dirname "$mask")" "$first")" Right
    picture "$window" viewer-missing-frame
    close_viewer

    "$bin/tarrow-view" --set contrast=1.5,saturation=1.6,outputGamma=1.2 "$mask" >"$out/view.log" 2>&1 &
    view_pid=$!
    place_viewer
    xdotool key ctrl+l
    picture root viewer-calibrated
    kill "$view_pid"
    wait "$view_pid" || true
    view_pid=
}

take_pictures() {
    local window
    open_tray_menu 1
    picture root tray-menu
    show_list
    window=$(xdotool search --onlyvisible --name '^Tarrow Alertor$' | tail -n 1)
    picture root screen
    picture "$window" window
    open_tray_menu 2
    xdotool key c
    wait_for 10 "the preferences" xdotool search --onlyvisible --name '^Alertor Preferences$'
    picture root preferences
    xdotool key Escape
    wait_for 10 "the preferences to close" has_windows 2
    take_viewer_pictures
}

# Viewer, list and tray in one picture.
lay_out_overview() {
    convert -size 1500x760 xc:'#39434f' "$out/viewer-playing.png" -geometry +20+30 -composite \
        "$out/window.png" -geometry +885+60 -composite \
        \( "$out/bubble.png" -gravity southeast -crop 172x90+0+0 +repage -transparent black \) -composite \
        +dither -colors 255 "$out/overview.png"
}

play_for_pictures() {
    rm -f "$out"/*.png
    start_farm --jobs 8 --rate 25
    start_client
    say "The farm plays its night"
    wait_for 120 "the end of the night" grep -q '^sent ' "$out/farm.log"
    wait_for 20 "the last event" all_arrived
    say "Taking pictures"
    picture root bubble
    take_pictures
    lay_out_overview
    kill "$client_pid"
    wait "$client_pid" || fail "the client ended with status $?; its output is $out/client.log"
    client_pid=
    say "$(sent) events were sent, $(arrived) arrived; the pictures are in $out"
    [ "$(arrived)" = "$(sent)" ] || fail "the numbers differ"
}

mkdir -p "$out"
case ${1-} in
    --play-for-pictures) play_for_pictures; exit ;; # below, under isolated.sh
    --pictures) pictures=yes ;;
    --help) sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 0 ;;
    '') [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ] && pictures=no || pictures=yes ;;
    *) fail "nothing is known of $1" ;;
esac

tags=(build)
[ "$pictures" = no ] || tags+=(demo)
install_packages "${tags[@]}"
step configure-release "Configuring (release)" cmake --preset release
step build-release "Building (release)" \
    cmake --build --preset release --target tarrow-alertor tarrow-demofarm tarrow-view
if [ "$pictures" = no ]; then
    play_on_desktop
else
    "$root/scripts/isolated.sh" --tray -- "$root/scripts/demo.sh" --play-for-pictures
fi
