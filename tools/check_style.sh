#!/bin/bash
# The rules of the house that the compiler can't see, checked by reading the sources.
#
#   tools/check_style.sh [folder of the project]
#
# Every offending line is shown; the last line counts the rules.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/tally.sh"
cd "${1:-$here/..}"

# Sources FOLDER...: the C++ files below.
Sources() { find "$@" -name '*.cpp' -o -name '*.h' 2>/dev/null | LC_ALL=C sort; }

# Code FILE...: the lines as "file:line:text" without their comments.
Code() {
    (($# == 0)) || awk '{ text = $0; sub(/(^|[ \t;{}])\/\/.*$/, "", text)
                          print FILENAME ":" FNR ":" text }' "$@"
}

# Refuse PATTERN FILE...: shows the lines of code that match; succeeds when there are none.
Refuse() {
    local pattern=$1
    shift
    ! Code "$@" | grep -E "^[^:]+:[0-9]+:.*($pattern)"
}

# The machine is reached through platform::Services alone; main makes them.
seam='\bcurrentDateTime(Utc)?\b|\bcurrent(Secs|MSecs)SinceEpoch\b|QTime::currentTime'
seam+='|QDate::currentDate|\b(system|steady)_clock\b|\bQTimer\b|\bQBasicTimer\b'
seam+='|\bQElapsedTimer\b|\bstartTimer\(|QRandomGenerator::(global|system)|\bs?rand\('
seam+='|\bQ(Message|File|Color|Input|Font)(Box|Dialog)::|QProcess::|QDesktopServices::'
seam+='|\bqgetenv\b|\bqEnvironmentVariable|\bgetenv\b|QStandardPaths::'
KeepsSeam() {
    mapfile -t files < <(Sources src | grep -Ev '^src/(platform/|main\.cpp$)')
    Refuse "$seam" "${files[@]}"
}

# A tick waits for nothing. These files wait, and no tick reaches them: programs' own event loops,
# windows that the user opens, the start, the companion, what runs in a thread of its own, and the
# end of processes that have been killed.
waits='\bexec\(|\bQEventLoop\b|\bprocessEvents\b|\bwaitFor[A-Z][A-Za-z]*\(|\bQDBus::Block'
waits+='|\b(([mu]|nano)?sleep|sleep_(for|until)|qSleep)\('
mayWait='main\.cpp|ctl/[A-Za-z]+\.cpp|platform/(voice|player)/main\.cpp'
mayWait+='|platform/devices/(ChildProcess|OpenPath|LogindActions|LocalOneProgram)\.cpp'
mayWait+='|platform/ui/DesktopDialogs\.cpp|foundation/SetupPaths\.cpp'
mayWait+='|shell/ui/(AboutBox|CustomizeToolbar)\.cpp'
NeverWaits() {
    mapfile -t files < <(Sources src | grep -Ev "^src/($mayWait)$")
    Refuse "$waits" "${files[@]}"
}

# What a tick finds out it posts: a box that asks would hold the tick up. Of the clock's window a
# tick reaches all but the menus and what they ask.
asks='\bShowMsgbox\(|\bDialog\.(MessageBox|OpenFile|SaveFile|PickColour)\('
AsksNobodyInATick() {
    mapfile -t files < <(Sources src | grep -E '^src/(drawing|timers|speech|clock)/' |
        grep -Ev '^src/clock/(Look|Timer)Dialogs\.cpp$')
    Refuse "$asks" "${files[@]}"
}

# A test waits for a condition; where it must wait for a time, its line tells why.
ExplainsWaits() {
    mapfile -t files < <(Sources tests bench fuzz)
    ((${#files[@]} == 0)) || ! grep -nE '\bqWait\(|\bqSleep\(' "${files[@]}" /dev/null |
        grep -vE '//[^/]*[[:alpha:]]{3}'
}

# The core library links no widget, so it may not include one either.
widgetHeaders=/usr/include
command -v qmake6 >/dev/null && widgetHeaders=$(qmake6 -query QT_INSTALL_HEADERS)
KeepsCoreFreeOfWidgets() {
    local names
    names=$(find "$widgetHeaders" -path '*QtWidgets/Q*' ! -name '*.h' -printf '%f|')
    [[ -n "$names" ]] || { echo "no header of QtWidgets below $widgetHeaders"; return 1; }
    mapfile -t files < <(Sources src | grep -E '^src/[^/]+/[^/]+$' | grep -v '^src/ctl/')
    Refuse "#include [<\"](QtWidgets/.*|(${names%|})|[a-z]+/ui/.*)[>\"]" "${files[@]}"
}

# Imports run one way: a file sees its own folder and the folders before it.
KeepsLayers() {
    mapfile -t files < <(Sources src)
    ! Code "${files[@]}" | awk -F: '
        BEGIN {
            n = split("platform 0 foundation 1 timezones 2 drawing 3 timers 3 speech 3 " \
                      "clock 4 editor 5 shell 6 ctl 7 main.cpp 7", words, " ")
            for (i = 1; i < n; i += 2) rank[words[i]] = words[i + 1]
        }
        $3 ~ /^[ \t]*#include "[a-z]+\// {
            split($1, path, "/"); from = path[2]
            split($3, part, /["\/]/); to = part[2]
            if (!(to in rank) || !(from in rank)) { print $0 "   (no such layer)"; bad = 1 }
            else if (to != from && rank[to] >= rank[from]) { print $0; bad = 1 }
        }
        END { exit bad ? 0 : 1 }'
}

# Includes name the folder, so that the rule above sees them.
NamesFolderInIncludes() {
    mapfile -t files < <(Sources src)
    ! Code "${files[@]}" | grep -E '#include "([^/"]+|\.[^"]*)"' | grep -vE '"(moc_)?[A-Za-z_]+\.moc"'
}

GuardsHeaders() {
    local bad
    mapfile -t files < <(Sources src tests bench fuzz | grep '\.h$')
    bad=$( ((${#files[@]} == 0)) || grep -L '^#pragma once$' "${files[@]}" || true)
    [[ -z "$bad" ]] || { echo "$bad"; return 1; }
}

# A test that is switched off proves nothing and is soon forgotten.
KeepsTestsOn() {
    mapfile -t files < <(Sources tests)
    Refuse 'QEXPECT_FAIL|QVERIFY2?\(true\b|#if 0' "${files[@]}"
}

Check "the machine is reached through its seam" KeepsSeam
Check "nothing waits in a tick" NeverWaits
Check "a tick asks nobody" AsksNobodyInATick
Check "waits in tests tell their reason" ExplainsWaits
Check "the core is free of widgets" KeepsCoreFreeOfWidgets
Check "imports run one way" KeepsLayers
Check "includes name their folder" NamesFolderInIncludes
Check "headers are guarded" GuardsHeaders
Check "tests are switched on" KeepsTestsOn
Finish
