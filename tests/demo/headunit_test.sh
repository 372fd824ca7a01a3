#!/bin/bash
# headunit_test.sh PROGRAM [RUNNER]
#
# The runner is for a program of another system, which may need that system's screen even where it shows nothing.
set -euo pipefail

program=(${2+"$2"} "$1")
scratch="$(mktemp -d)"
trap 'rm -rf -- "$scratch"' EXIT
(($# == 2)) || unset DISPLAY WAYLAND_DISPLAY
# Its windows meet those of no other program.
export KORVANE_RUNTIME_DIR="$scratch/runtime"
mkdir -m 700 -- "$KORVANE_RUNTIME_DIR"

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# A folder with a space, made by the program; the same pictures each time.
"${program[@]}" --tour "$scratch/the tour/a" >"$scratch/list"
"${program[@]}" --tour "$scratch/the tour/b" >/dev/null
[[ $(wc -l <"$scratch/list") -ge 10 ]] || fail "the tour shows too little"
while read -r picture; do
    # As another system's lines end and its folders are separated.
    picture=${picture%$'\r'}
    picture=${picture//\\//}
    [[ $(head -c 8 -- "$picture" | od -An -tx1 | tr -d ' \n') == 89504e470d0a1a0a ]] || fail "$picture is no PNG file"
    cmp -- "$picture" "$scratch/the tour/b/${picture##*/}" || fail "$picture differs from one tour to the next"
done <"$scratch/list"
[[ $(cksum <"$scratch/the tour/a/01-fm.png") != $(cksum <"$scratch/the tour/a/02-fm-swiped-up.png") ]] ||
    fail "a swipe changes nothing"

"${program[@]}" --screenshot "$scratch/one.png" >/dev/null
cmp -- "$scratch/one.png" "$scratch/the tour/a/01-fm.png" || fail "a screenshot is not the first picture of the tour"

# refuses STATUS TEXT ARGUMENT...: ends with that status and says so on standard error
refuses() {
    local status=0
    "${program[@]}" "${@:3}" >"$scratch/out" 2>"$scratch/err" || status=$?
    [[ $status == "$1" ]] || fail "${*:3}: ends with $status"
    grep -q -- "^headunit: .*$2" "$scratch/err" || fail "${*:3}: says $(<"$scratch/err")"
    [[ ! -s $scratch/out ]] || fail "${*:3}: prints to standard output"
}
refuses 3 'no-such-display' --display no-such-display
refuses 2 "'800' is not a size" --size 800
refuses 2 "is not a size" --size 0x480
refuses 2 "is not a size" --size 800x480x2
refuses 2 "'99999x480' is too large" --size 99999x480
refuses 2 "'8192x8192' is too large: .* 16777216 in all" --size 8192x8192
refuses 2 'no-such-folder' --device-root "$scratch/no-such-folder"
refuses 2 'no-such-folder' --usb "$scratch/no-such-folder"
refuses 2 'nonsense' --nonsense
refuses 2 'tour' --tour "$scratch/x" --screenshot "$scratch/y.png"
refuses 2 'display' --tour "$scratch/x" --display memory
refuses 2 'display' --display memory --screenshot "$scratch/y.png"
[[ ! -e $scratch/x && ! -e $scratch/y.png ]] || fail "makes pictures although the command is wrong"
mkdir "$scratch/empty"
refuses 1 'images' --device-root "$scratch/empty" --screenshot "$scratch/z.png"
: >"$scratch/file"
refuses 1 'folder' --tour "$scratch/file/tour"
refuses 1 'no-such-folder/z.png' --screenshot "$scratch/no-such-folder/z.png"
