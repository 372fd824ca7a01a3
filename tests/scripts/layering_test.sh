#!/bin/bash
# layering_test.sh SOURCE_TREE
set -euo pipefail

check="$1/tools/check/layering"
tree="$(mktemp -d)"
trap 'rm -rf -- "$tree"' EXIT

failures=0

# expect accepts|rejects FILE LINE: what the check says of a tree whose only file holds that line
expect() {
    rm -rf -- "${tree:?}"/*
    mkdir -p -- "$tree/$(dirname -- "$2")"
    printf '%s\n' "$3" >"$tree/$2"
    local answer=accepts
    "$check" "$tree" >/dev/null 2>"$tree.messages" || answer=rejects
    # A complaint names the file and the line.
    if [[ $answer == rejects ]] && ! grep -q "^$2:1: " "$tree.messages"; then
        answer='rejects without saying where'
    fi
    rm -f -- "$tree.messages"
    if [[ $answer != "$1" ]]; then
        printf '%s in %s: expected that it %s, but it %s\n' "$3" "$2" "$1" "$answer" >&2
        failures=$((failures + 1))
    fi
}

expect accepts controls/A.cpp '#include "engine/window/BaseCtrl.h"'
expect accepts controls/A.cpp '#include <cmath>'
expect accepts platform/posix/A.cpp '#include <sys/stat.h>'
expect accepts platform/A.h '#ifdef _WIN32'
expect accepts engine/draw/kernels/A.cpp '#include <hwy/highway.h>'
expect accepts tests/A.cpp '#include <gtest/gtest.h>'
expect accepts demo/A.cpp '#include "KorvaneEx.h"'
expect rejects platform/A.cpp '#include "engine/core/Types.h"'
expect rejects engine/draw/A.cpp '#include "controls/NumSlider.h"'
expect rejects controls/A.cpp '#include "module/SysBeep.h"'
expect rejects controls/A.h '  #  include "demo/headunit/Band.h"'
expect rejects module/A.cpp '#include "tools/png/Png.h"'
expect rejects controls/A.cpp '#include "engine/draw/kernels/Kernels.h"'
expect rejects controls/A.cpp '#include "NumSlider.h"'
expect rejects controls/A.cpp '#include <hwy/highway.h>'
expect rejects engine/window/A.cpp '#include <unistd.h>'
expect rejects demo/A.cpp '#include <png.h>'
expect rejects engine/A.cpp '#ifdef _WIN32'
expect rejects engine/A.cpp '#if defined(__linux__)'
expect rejects other/A.cpp 'int a;'

exit $((failures > 0))
