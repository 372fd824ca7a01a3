#!/bin/bash
# exports_test.sh LIST_SYMBOLS LIBRARY LIST...: the library exports the names of the lists and nothing else
set -euo pipefail
here=$(dirname -- "${BASH_SOURCE[0]}")
symbols=$1 library=$2
shift 2

if ! diff -u --label expected --label exported <(cat "$@" | LC_ALL=C sort) \
    <("$here/list-exports" "$symbols" "$library"); then
    echo "$library does not export what its list says: $*" >&2
    exit 1
fi
