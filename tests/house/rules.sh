#!/bin/bash
# Shows that each rule of tools/check_style.sh can fail, and that good code passes it: every case
# plants one line in an otherwise clean project in a scratch folder.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
. "$root/tools/tally.sh"

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# Plant FILE LINE: a project whose one odd line stands in FILE.
Plant() {
    rm -rf "$scratch/project"
    mkdir -p "$scratch/project"/{src/{platform,foundation,clock/ui},tests,bench,fuzz} \
             "$(dirname "$scratch/project/$1")"
    printf '#pragma once\n#include <QString>\n' >"$scratch/project/src/foundation/Clean.h"
    { [[ "$1" == *.h ]] && echo '#pragma once'; echo "$2"; } >"$scratch/project/$1"
}

Verdict() { "$root/tools/check_style.sh" "$scratch/project" 2>&1 || true; }

# Refused RULE FILE LINE: this rule, and no other, finds the line.
Refused() {
    local verdict
    Plant "$2" "$3"
    verdict=$(Verdict)
    grep -qxF "FAIL  $1" <<<"$verdict" && grep -qF "$2" <<<"$verdict" &&
        (($(grep -c '^FAIL' <<<"$verdict") == 1)) || { echo "$verdict"; return 1; }
}

# Accepted FILE LINE: no rule minds it.
Accepted() {
    local verdict
    Plant "$1" "$2"
    verdict=$(Verdict)
    ! grep -q '^FAIL' <<<"$verdict" && grep -qE '^[1-9][0-9]* passed, 0 failed$' <<<"$verdict" ||
        { echo "$verdict"; return 1; }
}

seam="the machine is reached through its seam"
for call in 'QDateTime::currentDateTime();' 'QTime::currentTime();' 'QTimer t;' \
    'std::chrono::system_clock::now();' 'QRandomGenerator::global();' 'QProcess::execute(a);' \
    'QMessageBox::warning(a);' 'QFileDialog::getOpenFileName();' 'qgetenv("A");' \
    'QElapsedTimer t;' 'QDateTime::currentMSecsSinceEpoch();' 'startTimer(5);' \
    'QColorDialog::getColor();' 'std::getenv("A");'; do
    Check "refuses $call" Refused "$seam" src/clock/ui/Bad.cpp "$call"
done
Check "refuses it behind a string with slashes" \
    Refused "$seam" src/foundation/Bad.cpp 'f(u"http://x"_s); QTimer t;'
Check "refuses it in the companion" Refused "$seam" src/ctl/Bad.cpp 'QTime::currentTime();'
Check "lets the platform use it" Accepted src/platform/Good.cpp 'QTimer t;'
Check "lets main use it" Accepted src/main.cpp 'qgetenv("A");'
Check "lets a comment name it" Accepted src/foundation/Good.cpp 'int a;  // no QTimer here'
Check "lets longer words be" Accepted src/foundation/Good.cpp 'void f(QTimerEvent* e);'

waits="waits in tests tell their reason"
Check "refuses a bare wait" Refused "$waits" tests/tst_bad.cpp 'QTest::qWait(50);'
Check "refuses an empty reason" Refused "$waits" tests/tst_bad.cpp 'QTest::qWait(50);  // 50'
Check "lets a wait with a reason be" \
    Accepted tests/tst_good.cpp 'QTest::qWait(50);  // nothing may happen in this time'

tick="nothing waits in a tick"
for call in 'box.exec();' 'QEventLoop loop;' 'QCoreApplication::processEvents();' \
    'process.waitForFinished(1000);' 'process->waitForReadyRead();' 'bus.call(m, QDBus::Block, 9);'; do
    Check "refuses $call" Refused "$tick" src/clock/ui/Bad.cpp "$call"
    Check "refuses it in the platform: $call" Refused "$tick" src/platform/Bad.h "$call"
done
for call in 'std::this_thread::sleep_for(1s);' 'this_thread::sleep_until(t);' 'usleep(500);' \
    'nanosleep(&t, 0);' 'sleep(1);' 'qSleep(9);' 'QThread::msleep(5);'; do
    Check "refuses a sleep: $call" Refused "$tick" src/clock/ui/Bad.cpp "$call"
    Check "refuses it in the platform: $call" Refused "$tick" src/platform/Bad.h "$call"
done
Check "lets the wait for another program sleep" \
    Accepted src/platform/devices/LocalOneProgram.cpp 'QThread::msleep(BetweenTries);'
Check "refuses it in a file of a like name" \
    Refused "$tick" src/clock/ui/DesktopDialogs.cpp 'box.exec();'
Check "lets the program run" Accepted src/main.cpp 'QApplication::exec();'
Check "lets a window of the user's wait" Accepted src/shell/ui/AboutBox.cpp 'box.exec();'
Check "lets what runs in its own thread wait" \
    Accepted src/platform/devices/OpenPath.cpp 'process.waitForFinished(1000);'
Check "lets like words be" Accepted src/clock/Good.cpp 'executor.exec_(); waitFor(1);'

asks="a tick asks nobody"
for call in 'host.ShowMsgbox(a, 1, b);' 'services.Dialog.MessageBox(a, 1, b);' \
    'services.Dialog.OpenFile(a, b, c);' 'services.Dialog.PickColour(1);'; do
    Check "refuses $call" Refused "$asks" src/timers/Bad.cpp "$call"
done
Check "refuses a question in a clock" \
    Refused "$asks" src/clock/Bad.cpp 'services.Dialog.SaveFile(a, b, c);'
for file in Timers Canvas Styles; do
    Check "refuses a question in the clock's window, where a tick comes: $file" Refused "$asks" \
        "src/clock/ui/frmTempolark$file.cpp" 'program_.Services.Dialog.OpenFile(a, b, c);'
done
Check "lets the questions of a look be asked" \
    Accepted src/clock/LookDialogs.cpp 'services.Dialog.OpenFile(a, b, c);'
Check "lets a window ask" Accepted src/shell/ui/Good.cpp 'services.Dialog.OpenFile(a, b, c);'
Check "lets a tick post" Accepted src/timers/Good.cpp 'services.Dialog.PostMessageBox(a, 1, b);'

core="the core is free of widgets"
Check "refuses a widget" Refused "$core" src/foundation/Bad.cpp '#include <QApplication>'
Check "refuses it by its full name" \
    Refused "$core" src/platform/Bad.cpp '#include <QtWidgets/QLabel>'
Check "refuses a window's header" \
    Refused "$core" src/clock/Bad.cpp '#include "clock/ui/Window.h"'
Check "lets windows use widgets" Accepted src/clock/ui/Good.cpp '#include <QWidget>'
Check "lets the core use pictures" Accepted src/clock/Good.cpp '#include <QImage>'

layers="imports run one way"
Check "refuses an import upwards" Refused "$layers" src/platform/Bad.h '#include "clock/A.h"'
Check "refuses the shell in a clock" Refused "$layers" src/clock/Bad.cpp '#include "shell/A.h"'
Check "refuses a neighbour" Refused "$layers" src/timers/Bad.cpp '#include "speech/A.h"'
Check "refuses the companion" Refused "$layers" src/shell/Bad.cpp '#include "ctl/A.h"'
Check "refuses an unknown layer" Refused "$layers" src/shell/Bad.cpp '#include "misc/A.h"'
Check "lets imports run down" Accepted src/shell/Good.cpp '#include "clock/A.h"'
Check "lets a folder see itself" Accepted src/timers/Good.cpp '#include "timers/A.h"'

Check "refuses an include without a folder" \
    Refused "includes name their folder" src/clock/Bad.cpp '#include "Bad.h"'
Check "refuses an include by way of .." \
    Refused "includes name their folder" src/clock/Bad.cpp '#include "../shell/Bad.h"'
Check "lets generated code be" Accepted src/clock/ui/Good.cpp '#include "Good.moc"'

Plant src/clock/Good.cpp 'int a;'
echo 'int b;' >"$scratch/project/src/clock/Open.h"
Check "refuses a header without a guard" \
    grep -qxF 'FAIL  headers are guarded' <<<"$(Verdict)"

Check "refuses an expected failure" \
    Refused "tests are switched on" tests/tst_bad.cpp 'QEXPECT_FAIL("", "later", Continue);'
Check "refuses a check of nothing" \
    Refused "tests are switched on" tests/tst_bad.cpp 'QVERIFY(true);'
Finish
