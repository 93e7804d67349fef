#!/bin/sh
# Stores the arrangement of a large, maximised window and starts the program again on smaller screens and at
# other scales, under a real window manager. Every start must end in a window that fills its screen and
# closes in order. Usage: smaller_screens.sh PROGRAM    (needs Xvfb, openbox and xdotool)
set -u
program=$(realpath "$1")
work=$(mktemp -d)
server= manager=
stop() { [ -n "$manager" ] && kill "$manager"; [ -n "$server" ] && kill "$server"; manager= server=; wait; }
trap 'stop 2>/dev/null; rm -rf "$work"' EXIT

mkdir -m 700 "$work/run"
mkdir "$work/home"
export HOME="$work/home" XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data" XDG_RUNTIME_DIR="$work/run"
export ZOLTO_HOME="$work/zolto" QT_QPA_PLATFORM=xcb
cp -r "$(dirname "$program")" "$ZOLTO_HOME"
rm -rf "$ZOLTO_HOME/Layouts" "$ZOLTO_HOME/Compilers/"*/help
i=0
while [ $i -lt 300 ]; do echo "Global name$i = $i"; i=$((i + 1)); done >"$work/one.bb"

# show SIZE SCALE: one start and end of the program on a screen of that size.
show() {
    got= status=
    Xvfb -displayfd 3 -screen 0 "$1x24" 3>"$work/display" 2>/dev/null &
    server=$!
    tries=0
    until [ -s "$work/display" ]; do sleep 0.1; tries=$((tries + 1)); [ $tries -lt 100 ] || exit 2; done
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    openbox >/dev/null 2>&1 &
    manager=$!
    sleep 0.5
    QT_SCALE_FACTOR=$2 "$program" "$work/one.bb" 2>"$work/told" &
    pid=$!
    window=$(timeout 20 xdotool search --sync --onlyvisible --name ' - Zolto$' 2>/dev/null | head -n 1)
    [ -n "$window" ] && xdotool windowactivate --sync "$window" 2>/dev/null
    sleep 2 # the desktop gives the window its size, and the window settles
    got=$(xdotool getwindowgeometry --shell "$window" 2>/dev/null | sed -n 's/^\(WIDTH\|HEIGHT\)=//p' | xargs)
    xdotool key --clearmodifiers ctrl+q
    (sleep 15; kill -9 $pid) 2>/dev/null &
    guard=$!
    wait $pid
    status=$?
    kill $guard 2>/dev/null
    stop 2>/dev/null
    rm -f "$work/display"
    [ $status -eq 0 ] && [ "${got% *}" = "${1%x*}" ]
}

failed=0
# try SIZE SCALE: from the stored arrangement of the large screen.
try() {
    rm -rf "$work/zolto/Layouts" "$work/config"
    cp -r "$work/stored/Layouts" "$work/zolto/Layouts"
    cp -r "$work/stored/config" "$work/config"
    if show "$1" "$2"; then
        echo "ok      $1 at $2: window $got"
    else
        echo "FAILED  $1 at $2: status $status, window ${got:-none}; $(tail -n 1 "$work/told")"
        failed=$((failed + 1))
    fi
}

# A first start is maximised, and its end stores that arrangement.
if ! show 1600x900 1; then
    echo "the start at 1600x900 failed: status $status, window ${got:-none}"
    exit 2
fi
mkdir "$work/stored"
cp -r "$work/zolto/Layouts" "$work/config" "$work/stored/"

for size in 1366x768 1280x800 1280x720 1024x768 1440x900 1600x900; do
    for scale in 1 1.25 1.5; do try $size $scale; done
done
try 1600x900 1.75
try 1600x900 2
try 1920x1080 1
[ $failed -eq 0 ] && echo "all came up"
exit $failed
