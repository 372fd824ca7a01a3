#!/bin/bash
# setup_test.sh SOURCE_TREE
#
# Runs the installer with stand-ins for the package tools, from a folder with a space in its name.
set -euo pipefail

scratch="$(mktemp -d)"
trap 'rm -rf -- "$scratch"' EXIT
setup="$scratch/a folder/setup"
tools="$scratch/tools"
mkdir -p "$setup" "$tools"
cp -- "$1/tools/setup/install-packages" "$setup"
printf '%s\n' '# comment' 'alpha' '' 'beta  # why' 'gamma' >"$setup/packages.txt"

# dpkg-query knows the packages that are in the file "present"; "apt-get install" puts them there, once
# "apt-get update" has run.
cat >"$tools/dpkg-query" <<'TOOL'
#!/bin/bash
for package in "${@:3}"; do
    grep -qx "$package" "$SCRATCH/present" && echo "installed $package"
done
TOOL
cat >"$tools/apt-get" <<'TOOL'
#!/bin/bash
echo "apt-get $*" >>"$SCRATCH/calls"
[[ ! -e $SCRATCH/offline ]] || exit 100
case $1 in
update) touch "$SCRATCH/lists" ;;
install)
    [[ -e $SCRATCH/lists ]] || exit 100
    for word in "${@:2}"; do
        [[ $word == --* ]] || echo "$word" >>"$SCRATCH/present"
    done
    ;;
esac
TOOL
cat >"$tools/sudo" <<'TOOL'
#!/bin/bash
echo "sudo" >>"$SCRATCH/calls"
[[ $1 != -n ]] || shift
exec "$@"
TOOL
chmod +x "$tools"/*
export SCRATCH="$scratch" PATH="$tools:$PATH"

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}
install() { "$setup/install-packages" </dev/null 2>"$scratch/said"; }
calls() { grep -c "${1-}" "$scratch/calls" || true; }
reset() { rm -f "$scratch"/{present,calls,lists,offline} && printf '%s\n' "$@" >"$scratch/present" && : >"$scratch/calls"; }

reset alpha beta gamma
install || fail "fails where nothing is missing"
[[ $(calls) == 0 ]] || fail "calls a package tool where nothing is missing"
[[ ! -s $scratch/said ]] || fail "talks where nothing is missing"

reset alpha
install || fail "does not install what is missing: $(<"$scratch/said")"
grep -qx beta "$scratch/present" && grep -qx gamma "$scratch/present" || fail "does not install all that is missing"
[[ $(calls alpha) == 0 ]] || fail "installs what is there"
[[ $(calls update) == 1 ]] || fail "does not fetch the package lists once"
if ((EUID == 0)); then
    [[ $(calls sudo) == 0 ]] || fail "root asks sudo"
else
    [[ $(calls sudo) != 0 ]] || fail "a user does not ask sudo"
fi
: >"$scratch/calls"
install || fail "fails the second time"
[[ $(calls) == 0 ]] || fail "calls a package tool the second time"

reset alpha
touch "$scratch/lists"
install || fail "does not install with package lists at hand"
[[ $(calls update) == 0 ]] || fail "fetches package lists that are at hand"

reset alpha
touch "$scratch/offline"
! install || fail "succeeds without having installed anything"
grep -q 'beta gamma' "$scratch/said" || fail "does not say which packages are missing"

printf '%s\n' 'delta' >"$setup/others.txt"
reset alpha
touch "$scratch/lists"
"$setup/install-packages" others.txt </dev/null 2>"$scratch/said" || fail "does not install what another list names"
grep -qx delta "$scratch/present" || fail "does not install what another list names"
! grep -qx beta "$scratch/present" || fail "installs what the other list does not name"
