#!/bin/bash
# window_picture_test.sh RUN_PROGRAM FOLDER HEADUNIT HEADUNITCTL DEVICE
#
# Starts the head unit of the folder for a Windows PC, a copy of it that lies somewhere else, and touches its window with
# the mouse of the X server. What the window shows on the X server's screen equals, pixel for pixel, what the head unit
# of this machine shows off-screen after the same touches.
set -euo pipefail

run_program=$(realpath -- "$1") folder=$2 headunit=$3 headunitctl=$4 device=$5
if [[ -z ${DISPLAY-} ]]; then
    echo "there is no X server to show the window" >&2
    exit 1
fi

scratch="$(mktemp -d)"
programs=()
finish() {
    local program
    for program in "${programs[@]}"; do
        kill "$program" 2>/dev/null || true
        wait "$program" 2>/dev/null || true
    done
    rm -rf -- "$scratch"
}
trap finish EXIT

fail() {
    printf '%s\n' "$*" >&2
    # Kept for whoever looks for the difference.
    if [[ -e $scratch/window.png ]]; then
        cp -- "$scratch/window.png" "$scratch/expected.png" . && echo "see $PWD/window.png and $PWD/expected.png" >&2
    fi
    exit 1
}

# wait_for TEXT FILE: until the program has printed it
wait_for() {
    local tries
    for ((tries = 0; tries < 300; tries++)); do
        if grep -q -- "$1" "$2"; then
            return
        fi
        sleep 0.1
    done
    fail "prints no \"$1\" but: $(<"$2")"
}

# Both have the settings of a new device.
cp -r -- "$folder" "$scratch/A Windows folder"
cp -r -- "$device" "$scratch/device"
export KORVANE_DEVICE_ROOT="$scratch/device" KORVANE_RUNTIME_DIR="$scratch/runtime"
mkdir -m 700 -- "$KORVANE_RUNTIME_DIR"

"$headunit" --display memory >"$scratch/expected.log" 2>&1 &
programs+=($!)
(cd / && unset KORVANE_DEVICE_ROOT &&
    exec "$run_program" "$scratch/A Windows folder/headunit.exe" >"$scratch/window.log" 2>&1) &
programs+=($!)
wait_for 'headunit: ready' "$scratch/expected.log"
wait_for 'headunit: ready' "$scratch/window.log"

window=$(xdotool search --onlyvisible --name '^KorvaneEx head unit$' | head -n 1)
[[ -n $window ]] || fail "no window has the head unit's title"

# Without a window manager the system may draw the frame itself, as a part of the X server's window: as wide on the left,
# on the right and below, and with the title above.
screen_width=800 screen_height=480
eval "$(xdotool getwindowgeometry --shell "$window")"
frame=$(((WIDTH - screen_width) / 2))
title=$((HEIGHT - screen_height - frame))

# expect_same WHEN: both come to show the same. The clock in the title may reach another minute between the two pictures,
# and what moves takes its time.
expect_same() {
    local tries
    for ((tries = 0; tries < 40; tries++)); do
        "$headunitctl" screenshot "$scratch/expected.png" >/dev/null
        import -window "$window" -crop "${screen_width}x$screen_height+$frame+$title" +repage "$scratch/window.png"
        if [[ $(compare -metric AE "$scratch/expected.png" "$scratch/window.png" null: 2>&1) == 0 ]]; then
            return
        fi
        sleep 0.25
    done
    fail "differs $1"
}

# A touch in the middle of the button that leads to the sources.
x=688 y=224
expect_same "at the start"
cp -- "$scratch/expected.png" "$scratch/start.png"
xdotool mousemove --window "$window" "$((x + frame))" "$((y + title))" mousedown 1
"$headunitctl" press "$x" "$y"
expect_same "while a finger holds a button"
! cmp -s "$scratch/start.png" "$scratch/expected.png" || fail "a press shows nothing"
# The finger leaves the button, here with the window itself.
xdotool mousemove 2 2
"$headunitctl" move "$x" 470
expect_same "after the finger has left the window"
xdotool mousemove --window "$window" "$((x + frame))" "$((y + title))" mouseup 1
"$headunitctl" move "$x" "$y"
"$headunitctl" release "$x" "$y"
expect_same "after the release"
