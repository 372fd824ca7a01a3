#!/bin/bash
# run_headunit_test.sh SOURCE_TREE
#
# Runs the head unit's starter with stand-ins for the programs, from a folder with a space in its name.
set -euo pipefail

run="$1/tools/run-headunit"
scratch="$(mktemp -d)"
trap 'rm -rf -- "$scratch"' EXIT
programs="$scratch/the programs"
mkdir "$programs"
export SCRATCH="$scratch"
unset DISPLAY WAYLAND_DISPLAY SDL_VIDEODRIVER MAIN

# The main application notes its process and waits to be ended; the head unit notes whether that runs, and ends with
# the status in the file "status".
cat >"$programs/mainapp" <<'PROGRAM'
#!/bin/bash
[[ ! -e $SCRATCH/refuses ]] || exit 1
echo $$ >"$SCRATCH/main"
echo "mainapp: ready"
exec sleep infinity
PROGRAM
cat >"$programs/headunit" <<'PROGRAM'
#!/bin/bash
main=alone
[[ ! -e $SCRATCH/main ]] || ! kill -0 "$(<"$SCRATCH/main")" || main=main
echo "$main $*" >>"$SCRATCH/calls"
[[ $1 != --display ]] || exit "$(<"$SCRATCH/status")"
PROGRAM
chmod +x "$programs"/*

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}
# expect STATUS CALLS: runs the starter, which must end with that status after these calls
expect() {
    : >"$scratch/calls"
    local status=0
    "$run" "$programs" "$scratch/a tour" >/dev/null || status=$?
    [[ $status == "$1" ]] || fail "ends with $status in place of $1"
    [[ $(<"$scratch/calls") == "$2" ]] || fail "calls $(<"$scratch/calls") in place of $2"
}
tour="--tour $scratch/a tour"

expect 0 "alone $tour"
MAIN=process expect 0 "alone $tour"

export DISPLAY=:99
echo 0 >"$scratch/status"
expect 0 "alone --display sdl"
echo 5 >"$scratch/status"
expect 5 "alone --display sdl"
echo 3 >"$scratch/status"
expect 0 "alone --display sdl"$'\n'"alone $tour"

export MAIN=process
echo 0 >"$scratch/status"
expect 0 "main --display sdl"
! kill -0 "$(<"$scratch/main")" 2>/dev/null || fail "leaves the main application running"
rm "$scratch/main"
touch "$scratch/refuses"
expect 1 ""
