#!/bin/bash
# exports_test.sh NM LIBRARY: the service exports its ten entry points and nothing else
set -euo pipefail

expected='LQ_GetSetupValue
LQ_GetSetupValueStr
LQ_GetSysInfo
LQ_GetThumbNail
LQ_InitSetupInfo
LQ_ReleaseSetupInfo
LQ_ReleaseSysInfo
LQ_ReleaseThumbNail
LQ_SetSetupValue
LQ_SetSetupValueStr'
exported="$("$1" -D --defined-only "$2" | awk '{ print $NF }' | LC_ALL=C sort)"
diff -u <(printf '%s\n' "$expected") <(printf '%s\n' "$exported")
