#!/bin/bash
# readme_test.sh SOURCE_TREE
set -euo pipefail

sed -n '/^```cpp$/,/^```$/{/^```/d;p}' "$1/README.md" | diff - "$1/demo/hello/main.cpp" || {
    echo "README.md does not show demo/hello/main.cpp" >&2
    exit 1
}
