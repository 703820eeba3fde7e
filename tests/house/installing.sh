#!/bin/bash
# Shows what tools/install.sh does about an old zone database: apt and the list of packages are
# stand-ins that write down how they are called.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
. "$root/tools/tally.sh"

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/bin"
export PATH=$scratch/bin:$PATH APT_GET=$scratch/bin/apt-get APT_CACHE=$scratch/bin/apt-cache
export ZONES_ASKED=$scratch/asked SCRATCH=$scratch

# Command NAME SCRIPT: a stand-in.
Command() {
    printf '#!/bin/bash\n%s\n' "$2" >"$scratch/bin/$1"
    chmod +x "$scratch/bin/$1"
}
# Every package is there but those in the file "missing"; apt knows the versions in two files. An
# update brings "newer", an installation takes the candidate; "offline" makes apt-get fail.
Command dpkg-query 'shift 2
for package; do
    grep -qx "$package" "$SCRATCH/missing" 2>/dev/null || printf "installed=%s " "$package"
done'
Command apt-cache 'echo "tzdata:"
echo "  Installed: $(<"$SCRATCH/has")"
echo "  Candidate: $(<"$SCRATCH/candidate")"
echo "  Version table:"'
Command apt-get 'while [[ "$1" == -* ]]; do [[ "$1" == -o ]] && shift; shift; done
echo "$@" >>"$SCRATCH/calls"
[[ ! -e "$SCRATCH/offline" ]] || { echo "E: no network" >&2; exit 100; }
case "$1" in
    update) [[ ! -e "$SCRATCH/newer" ]] || cp "$SCRATCH/newer" "$SCRATCH/candidate" ;;
    install) cp "$SCRATCH/candidate" "$SCRATCH/has" ;;
esac'
Command sudo 'exec "$@"'

year=$(date +%Y)
install="install -y --no-install-recommends"

# Machine HAS CANDIDATE: nothing has been asked or called yet.
Machine() {
    rm -f "$scratch"/{asked,calls,offline,newer,missing}
    echo "$1" >"$scratch/has"
    echo "$2" >"$scratch/candidate"
    touch "$scratch/calls"
}

# Runs CALLS SAYS: the script succeeds, apt-get gets these calls and the user these words.
Runs() {
    local said
    said=$("$root/tools/install.sh" run 2>&1) || { echo "failed: $said"; return 1; }
    [[ "$(paste -sd'|' "$scratch/calls")" == "$1" && "$said" == "$2" ]] ||
        { cat "$scratch/calls"; echo "said: $said"; return 1; }
}

update="Bringing the zone database up to date:"
Machine "${year}f" "${year}f"
Check "asks whether there is a newer one than that of this year" Runs "update" ""
: >"$scratch/calls"
Check "does so once a week only" Runs "" ""
touch -d '8 days ago' "$scratch/asked"
echo "${year}g" >"$scratch/newer"
Check "takes it within the year" Runs "update|$install tzdata" "$update ${year}f to ${year}g"
Machine 2019b "${year}f"
Check "takes the newer one that apt knows of" \
    Runs "$install tzdata" "$update 2019b to ${year}f"
: >"$scratch/calls"
echo 2019b >"$scratch/has"
Check "asks once a week only" Runs "" ""
touch -d '8 days ago' "$scratch/asked"
Check "asks again in the next" Runs "$install tzdata" "$update 2019b to ${year}f"
Machine 2019b 2019b
Check "asks the archive when all that apt knows is old" Runs "update" ""
Check "asks an old archive once a week only" Runs "update" ""
Machine 2019b 2019b
echo "${year}a" >"$scratch/newer"
Check "takes what the archive has" Runs "update|$install tzdata" "$update 2019b to ${year}a"
Machine 2019b 2019b
touch "$scratch/offline"
Check "goes on with an old one where there is no network" Runs "update" ""
Check "does not try again on that day" Runs "update" ""
# Ages DAYS: so much time goes by, and a little more: find counts whole days.
Ages() { touch -d "@$(($(stat -c %Y "$scratch/asked") - $1 * 86400 - 2))" "$scratch/asked"; }
Ages 1
rm "$scratch/offline"
echo "${year}a" >"$scratch/newer"
: >"$scratch/calls"
Check "tries again on the next" Runs "update|$install tzdata" "$update 2019b to ${year}a"
: >"$scratch/calls"
Ages 6
Check "and then in a week" Runs "" ""
Ages 1
Check "which is over now" Runs "update" ""
Machine 2019b "${year}f"
touch "$scratch/offline"
Check "tells when the newer one can't be had" Runs "$install tzdata|update" \
    "$update 2019b to ${year}f
That failed: clocks go by the zone database 2019b."
: >"$scratch/calls"
Check "tells it once a day" Runs "" ""
Ages 1
rm "$scratch/offline"
Check "has it on the next" Runs "$install tzdata" "$update 2019b to ${year}f"
Machine "${year}f" "${year}f"
echo ninja-build >"$scratch/missing"
Check "installs what is missing" Runs "update|$install ninja-build" "Installing: ninja-build"
rm "$scratch/missing"
Check "has asked with that" Runs "update|$install ninja-build" ""

Fails() { ! "$root/tools/install.sh" run >/dev/null 2>&1; }
Machine "${year}f" "${year}f"
echo ninja-build >"$scratch/missing"
touch "$scratch/offline"
Check "fails when what is missing can't be had" Fails
Finish
