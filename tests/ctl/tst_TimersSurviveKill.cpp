#include <signal.h>

#include <QRandomGenerator>

#include "Companion.h"

using namespace Qt::StringLiterals;

/// A clock that fires a timer in each minute, and so saves its timers over and over, is killed
/// again and again: no timer is ever lost.
class tst_TimersSurviveKill : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LeavesTheOldFileOrTheNewOne();
};

namespace {

constexpr int Kills = 100;
constexpr int LongestLife = 150;  // milliseconds
const QString Zone = u"UTC"_s;
const QString TimerFile = u"me/Timers/UTCTimer.txt"_s;

/// A permanent timer on each minute of the dial whose action keeps it there. A save writes the name
/// of the colour with a capital.
QByteArray Timers(const QByteArray& colour) {
    QByteArray lines;
    for (int minute = 0; minute < 720; ++minute) {
        const int hour = 12 + minute / 60;
        if (minute >= 60) {  // hour 12 would be written as 12 + 12, and not come back
            lines += "0," + colour + ",,/opt/note,0#" + QByteArray::number(hour) + ':' +
                     QByteArray::number(minute % 60) + "@Note " + QByteArray::number(minute) +
                     "\r\n";
        }
    }
    return lines;
}

QStringList ClockRun(const Companion& companion) {
    return {u"--app-folder"_s,
            companion.Folder.path(),
            u"--user"_s,
            u"me"_s,
            u"--now"_s,
            u"2026-11-21T01:00:00"_s,
            u"--local-zone"_s,
            u"UTC"_s,
            u"clock"_s,
            u"run"_s,
            Zone,
            u"--seconds"_s,
            u"36000"_s};
}

/// Kills a clock so many milliseconds after it was started, or after it has told its first events.
/// @return whether the clock was still at it
bool KillAfter(const Companion& companion, int milliseconds, bool fromFirstEvents) {
    QProcess process;
    process.setProcessEnvironment(companion.Environment);
    process.start(QStringLiteral(TEMPOLARK_BIN_DIR "/tempolarkctl"), ClockRun(companion));
    if (fromFirstEvents) {
        process.waitForReadyRead();
    }
    if (process.waitForFinished(milliseconds)) {
        return false;
    }
    ::kill(static_cast<pid_t>(process.processId()), SIGKILL);
    process.waitForFinished();
    return process.exitStatus() == QProcess::CrashExit;
}

}  // namespace

void tst_TimersSurviveKill::LeavesTheOldFileOrTheNewOne() {
    const Companion companion;
    companion.Write(u"ini/Tempolark.ini"_s, "Speech:Speaker Volume=0\r\nClock:Clocks=Analogue\r\n");
    companion.Write(u"ini/TempolarkCentral.ini"_s, "\r\n");
    const QByteArray old = Timers("red");
    const QByteArray saved = Timers("Red");
    QRandomGenerator random(20261121);
    int killed = 0;
    int oldOnes = 0;
    int savedOnes = 0;
    for (int kill = 0; kill < Kills; ++kill) {
        companion.Write(TimerFile, old);
        const int life = random.bounded(LongestLife);
        killed += KillAfter(companion, life, kill % 4 != 0) ? 1 : 0;
        const QByteArray found = companion.Read(TimerFile);
        oldOnes += found == old ? 1 : 0;
        savedOnes += found == saved ? 1 : 0;
        QCOMPARE(oldOnes + savedOnes, kill + 1);
    }
    QVERIFY(killed > Kills / 2);
    QVERIFY(oldOnes > 0);
    QVERIFY(savedOnes > 0);

    // What a killed save has left beside the file is no matter to the next clock.
    const QJsonObject loaded =
        companion
            .Run({u"--app-folder"_s, companion.Folder.path(), u"--now"_s, u"2026-11-21T01:00:00"_s,
                  u"--local-zone"_s, u"UTC"_s, u"timers"_s, u"load"_s,
                  companion.Folder.filePath(TimerFile), u"--zone"_s, Zone})
            .Object();
    int onDial = 0;
    for (const QJsonValue& slot : loaded.value(u"slots"_s).toArray()) {
        onDial += slot.toObject().value(u"OnDial"_s).toBool() ? 1 : 0;
    }
    QCOMPARE(onDial, 660);
}

QTEST_GUILESS_MAIN(tst_TimersSurviveKill)
#include "tst_TimersSurviveKill.moc"
