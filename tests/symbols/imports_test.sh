#!/bin/bash
# imports_test.sh LIST_SYMBOLS LIBRARY LIST EXPORTS: the library imports nothing that its list lacks, and the list names
# nothing that is not imported but for lines that hold in 32 or 64 bits alone. The name * stands for all names of a
# library but for those in EXPORTS, the system's calls that the engine passes on.
set -euo pipefail
here=$(dirname -- "${BASH_SOURCE[0]}")

awk -v list="$3" -v exports="$4" '
    FILENAME == exports {
        sub(/\(.*/, "")
        isCall[$0] = 1
        next
    }
    FILENAME == list {
        if ($0 !~ /^(#|$)/)
            listed[$1 " " $2] = 0
        if ($0 !~ /^(#|$)/ && ($3 !~ /^(yes|inline|no|-)$/ || $4 !~ /^(library|runtime)$/)) {
            printf "%s:%d: \"%s\" does not say all that a line has to\n", list, FNR, $0
            failed = 1
        }
        if ($5 ~ /^(32|64)-bit$/)
            optional[$1 " " $2] = 1
        next
    }
    {
        name = substr($0, length($1) + 2)
        if ($0 in listed)
            listed[$0]++
        else if ($1 " *" in listed && !(name in isCall))
            listed[$1 " *"]++
        else {
            print $0 " is imported and not listed in " list
            failed = 1
        }
    }
    END {
        for (line in listed)
            if (!listed[line] && !(line in optional)) {
                print line " is listed in " list " and not imported"
                failed = 1
            }
        exit failed
    }' "$4" "$3" <("$here/list-imports" "$1" "$2") >&2
