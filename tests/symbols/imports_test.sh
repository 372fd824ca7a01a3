#!/bin/bash
# imports_test.sh OBJDUMP LIBRARY LIST: the library imports nothing that its list lacks, and the list names nothing that
# is not imported but for lines that hold in 32 or 64 bits alone
set -euo pipefail
here=$(dirname -- "${BASH_SOURCE[0]}")

awk -v list="$3" '
    NR == FNR {
        if ($0 !~ /^(#|$)/)
            listed[$1 " " $2] = 0
        if ($0 !~ /^(#|$)/ && ($3 !~ /^(yes|no|-)$/ || $4 !~ /^(library|runtime)$/)) {
            printf "%s:%d: \"%s\" does not say all that a line has to\n", list, FNR, $0
            failed = 1
        }
        if ($5 ~ /^(32|64)-bit$/)
            optional[$1 " " $2] = 1
        next
    }
    {
        if ($0 in listed)
            listed[$0]++
        else if ($1 " *" in listed)
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
    }' "$3" <("$here/list-imports" "$1" "$2") >&2
